#include "agenda/shared/frmLista_columns.hpp"

namespace kova::agenda {

namespace {

constexpr Integer Esquerda = grid_alignment::LeftMiddle;
constexpr Integer Centro = grid_alignment::CentreMiddle;

// clang-format off
constexpr std::array<Coluna, QuantidadeDeColunas> Colunas {{
    {0, "Coluna em branco", 0, Esquerda, "", false},
    {1, "Número do\r\nLançamento", 1570, Centro, "NumeroDeLancamento", false},
    {2, "Data Inicial", 0, Esquerda, "DataInicial", false},
    {3, "Hora\r\nInicial", 1170, Esquerda, "HoraInicial", false},
    {4, "Data Final", 0, Esquerda, "DataFinal", false},
    {5, "Hora Final", 0, Esquerda, "HoraFinal", false},
    {6, "Código do\r\nCliente", 1430, Centro, "CodigoDoCliente", false},
    {7, "Apelido ou\r\nNome fantasia", 0, Esquerda, "ApelidoOuNomeFantasiaDoCliente", false},
    {8, "Nome ou\r\nRazão Social", 5040, Esquerda, "NomeOuRazaoSocialDoCliente", false},
    {9, "Tipo de cliente", 0, Esquerda, "TipoDeCliente", false},
    {10, "Endereço do cliente", 0, Esquerda, "EnderecoCompletoComCEP", false},
    {11, "Canal de comunicação do cliente", 0, Esquerda, "TiposECanaisDeComunicacao", false},
    {12, "Código do\r\nAnimal", 0, Centro, "CodigoDoAnimal", false},
    {13, "Nome do\r\nAnimal", 1720, Esquerda, "NomeDoAnimal", false},
    {14, "Sexo do animal", 0, Esquerda, "SexoDoAnimal", false},
    {15, "Código da espécie do animal", 0, Esquerda, "CodigoDaEspecie", false},
    {16, "Nome da espécie do animal", 0, Esquerda, "NomeDaEspecie", false},
    {17, "Código da raça do animal", 0, Esquerda, "CodigoDaRaca", false},
    {18, "Nome da raça do animal", 0, Esquerda, "NomeDaRaca", false},
    {19, "Porte do animal", 0, Esquerda, "PorteDoAnimal", false},
    {20, "Cor do animal", 0, Esquerda, "CorDoAnimal", false},
    {21, "Observação do animal", 0, Esquerda, "ObservacaoDoAnimal", true},
    {22, "Número do tipo de serviço", 0, Esquerda, "NumeroDoTipoDeServico", false},
    {23, "Nome do\r\nTipo de serviço", 2000, Esquerda, "NomeDoTipoDeServico", false},
    {24, "Código do serviço", 0, Esquerda, "CodigoDoServico", false},
    {25, "Nome do serviço", 0, Esquerda, "NomeDoServico", false},
    {26, "Tempo de execução do serviço", 0, Esquerda, "TempoDeExecucao", false},
    {27, "Código do funcionário", 0, Esquerda, "CodigoDoFuncionario", false},
    {28, "Apelido do Funcionário", 0, Esquerda, "ApelidoDoFuncionario", false},
    {29, "Nome do Funcionário", 0, Esquerda, "NomeDoFuncionario", false},
    {30, "Observação do agendamento", 0, Esquerda, "Observacao", true},
    {31, "Transporte buscar", 0, Esquerda, "TransporteBuscar", false},
    {32, "Transporte levar", 0, Esquerda, "TransporteLevar", false},
    {33, "Código do situação", 0, Esquerda, "Situacao", false},
    {34, "Situação", 2100, Centro, "", false},
    {35, "Data e hora da inclusão", 0, Esquerda, "DataEHoraDaInclusao", false},
    {36, "Usuário da inclusão", 0, Esquerda, "UsuarioDaInclusao", false},
    {37, "Data e hora da alteração", 0, Esquerda, "DataEHoraDaAlteracao", true},
    {38, "Usuário da alteração", 0, Esquerda, "UsuarioDaAlteracao", true},
}};
// clang-format on

} // namespace

const std::array<Coluna, QuantidadeDeColunas>& ColunasDaGrade() { return Colunas; }

} // namespace kova::agenda
