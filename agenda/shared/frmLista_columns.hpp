#pragma once

#include "agenda/contracts/widgets/grid.hpp"

#include <array>

namespace kova::agenda {

inline constexpr Long QuantidadeDeColunas = 39;

/// One column of frmLista's grid. Every field of an appointment lies in a cell, most of them in columns
/// of width 0: the panel, the commands, the record forms and the cards read them by these numbers.
struct Coluna {
    Long numero;
    /// A line break parts a title of two lines.
    const char* titulo;
    /// Twips; 0 hides the column.
    Long largura;
    Integer alinhamento;
    /// Field of the page's record set; "" where the column has none.
    const char* campo;
    /// A Null of the field becomes "".
    bool aceitaNulo;
};

const std::array<Coluna, QuantidadeDeColunas>& ColunasDaGrade();

namespace colunas {
inline constexpr Long EmBranco = 0;
inline constexpr Long NumeroDeLancamento = 1;
inline constexpr Long DataInicial = 2;
inline constexpr Long HoraInicial = 3;
inline constexpr Long DataFinal = 4;
inline constexpr Long HoraFinal = 5;
inline constexpr Long CodigoDoCliente = 6;
inline constexpr Long ApelidoOuNomeFantasiaDoCliente = 7;
inline constexpr Long NomeOuRazaoSocialDoCliente = 8;
inline constexpr Long TipoDeCliente = 9;
inline constexpr Long EnderecoCompletoComCEP = 10;
inline constexpr Long TiposECanaisDeComunicacao = 11;
inline constexpr Long CodigoDoAnimal = 12;
inline constexpr Long NomeDoAnimal = 13;
inline constexpr Long SexoDoAnimal = 14;
inline constexpr Long CodigoDaEspecie = 15;
inline constexpr Long NomeDaEspecie = 16;
inline constexpr Long CodigoDaRaca = 17;
inline constexpr Long NomeDaRaca = 18;
inline constexpr Long PorteDoAnimal = 19;
inline constexpr Long CorDoAnimal = 20;
inline constexpr Long ObservacaoDoAnimal = 21;
inline constexpr Long NumeroDoTipoDeServico = 22;
inline constexpr Long NomeDoTipoDeServico = 23;
inline constexpr Long CodigoDoServico = 24;
inline constexpr Long NomeDoServico = 25;
inline constexpr Long TempoDeExecucao = 26;
inline constexpr Long CodigoDoFuncionario = 27;
inline constexpr Long ApelidoDoFuncionario = 28;
inline constexpr Long NomeDoFuncionario = 29;
inline constexpr Long Observacao = 30;
inline constexpr Long TransporteBuscar = 31;
inline constexpr Long TransporteLevar = 32;
inline constexpr Long Situacao = 33;
inline constexpr Long FiguraDaSituacao = 34;
inline constexpr Long DataEHoraDaInclusao = 35;
inline constexpr Long UsuarioDaInclusao = 36;
inline constexpr Long DataEHoraDaAlteracao = 37;
inline constexpr Long UsuarioDaAlteracao = 38;
} // namespace colunas

} // namespace kova::agenda
