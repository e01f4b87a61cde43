#include "agenda/full_record/frmFichaCompleta_design.hpp"

#include "agenda/records/record_form_design.hpp"
#include "agenda/shared/palette.hpp"
#include "agenda/shared/wait_plate.hpp"

namespace kova::agenda {

namespace {

using namespace medidas_da_ficha;
using Kind = WidgetKind;

// The edges on which everything stands. The last row of the service decides them: on adding it shows note,
// repetition, fetching and taking back, otherwise note, fetching, taking back and situation.
constexpr Twips EsquerdaDeReagendar = 3460;
constexpr Twips EsquerdaDeBuscar = 7195;
constexpr Twips EsquerdaDeSituacao = 9620;
constexpr Twips LarguraDaSituacao = 2300;
static_assert(EsquerdaDeSituacao + LarguraDaSituacao == BordaDireita);

constexpr Twips TopoDoCliente = 930;
constexpr Twips PrimeiraLinhaDoCliente = TopoDoCliente + PassoDaSecao;
constexpr Twips SegundaLinhaDoCliente = PrimeiraLinhaDoCliente + PassoDasLinhas;
constexpr Twips TopoDoAnimal = SegundaLinhaDoCliente + PassoDasLinhas + 60;
constexpr Twips LinhaDoAnimal = TopoDoAnimal + PassoDaSecao;
constexpr Twips TopoDoServico = LinhaDoAnimal + PassoDasLinhas + 60;
constexpr Twips PrimeiraLinhaDoServico = TopoDoServico + PassoDaSecao;
constexpr Twips SegundaLinhaDoServico = PrimeiraLinhaDoServico + PassoDasLinhas;
constexpr Twips TerceiraLinhaDoServico = SegundaLinhaDoServico + PassoDasLinhas;
constexpr Twips TopoDosBotoes = TerceiraLinhaDoServico + PassoDasLinhas + 120;
constexpr Twips AlturaInterna = TopoDosBotoes + AlturaDoCampo + 240;

/// Reached by its key or the mouse: the form opens on the first box of the search, and Tab stays among the
/// boxes.
ControlDesign Opcao(int indice, const char* texto, Twips esquerda, const char* tecla)
{
    return {.kind = Kind::OptionButton,
            .name = "optAgendarPor",
            .index = indice,
            .left = esquerda,
            .top = TopoDoCliente + 30,
            .width = LarguraDaSituacao,
            .height = AlturaDoRotulo,
            .caption = texto,
            .tabStop = false,
            .fontSize = 9,
            .foreColor = cores::Rotulo,
            .shortcut = tecla,
            .value = indice == 1 ? 1 : 0};
}

void Append(std::vector<ControlDesign>& all, std::vector<ControlDesign> more)
{
    all.insert(all.end(), more.begin(), more.end());
}

std::vector<ControlDesign> Cabecalho()
{
    return {
        CabecalhoDaFicha("Agendamento completo"),
        {.kind = Kind::Label,
         .name = "txtPesquisarPor",
         .left = EsquerdaDeBuscar - 1200,
         .top = TopoDoCliente + 30,
         .caption = "Pequisar por:",
         .autoSize = true,
         .fontSize = 9,
         .foreColor = cores::Rotulo},
        Opcao(1, "Dados do cliente ", EsquerdaDeBuscar, "Alt+D"),
        Opcao(2, "Nome do animal", EsquerdaDeSituacao, "Alt+L"),
    };
}

std::vector<ControlDesign> Cliente()
{
    constexpr Twips larguraDoCodigo = 1500;
    constexpr Twips esquerdaDoApelido = Margem + larguraDoCodigo + Vao;
    constexpr Twips larguraDoApelido = EsquerdaDeBuscar - Vao - esquerdaDoApelido;
    constexpr Twips larguraDaDireita = BordaDireita - EsquerdaDeBuscar;
    return {
        SecaoDaFicha("lblCliente", "Cliente*", TopoDoCliente),
        RotuloDeCampo("lblCodigoDoCliente", "&Codigo", "kvfCodigoDoCliente", Margem, PrimeiraLinhaDoCliente),
        ComNomeAcessivel(CampoDeCodigo("kvfCodigoDoCliente", Margem, PrimeiraLinhaDoCliente, larguraDoCodigo),
                         "Código do cliente"),
        RotuloDeCampo("lblApelidoOuNomeFantasiaDoCliente", "&Apelido ou nome fantasia",
                      "kvfApelidoOuNomeFantasiaDoCliente", esquerdaDoApelido, PrimeiraLinhaDoCliente),
        CaixaDeCampo(Kind::KVFind, "kvfApelidoOuNomeFantasiaDoCliente", esquerdaDoApelido,
                     PrimeiraLinhaDoCliente, larguraDoApelido),
        RotuloDeCampo("lblNomeOuRazaoSocialDoCliente", "&Nome ou Razão Social",
                      "kvfNomeOuRazaoSocialDoCliente", EsquerdaDeBuscar, PrimeiraLinhaDoCliente),
        CaixaDeCampo(Kind::KVFind, "kvfNomeOuRazaoSocialDoCliente", EsquerdaDeBuscar, PrimeiraLinhaDoCliente,
                     larguraDaDireita),
        RotuloDeCampo("lblEndereco", "&Endereço", "kvfEnderecoDoCliente", Margem, SegundaLinhaDoCliente),
        CaixaDeCampo(Kind::KVFind, "kvfEnderecoDoCliente", Margem, SegundaLinhaDoCliente,
                     EsquerdaDeBuscar - Vao - Margem),
        RotuloDeCampo("lblCanalDeComunicacao", "Canal de comunicação", "kvtxtTiposECanaisDeComunicacao",
                      EsquerdaDeBuscar, SegundaLinhaDoCliente),
        CampoSomenteLeitura("kvtxtTiposECanaisDeComunicacao", EsquerdaDeBuscar, SegundaLinhaDoCliente,
                            larguraDaDireita, 0),
    };
}

std::vector<ControlDesign> Animal()
{
    constexpr Twips larguraDoNome = 3610;
    constexpr Twips esquerdaDoSexo = Margem + larguraDoNome + Vao;
    constexpr Twips larguraDoSexo = 1200;
    constexpr Twips esquerdaDaEspecie = esquerdaDoSexo + larguraDoSexo + Vao;
    constexpr Twips larguraDaEspecie = EsquerdaDeBuscar - Vao - esquerdaDaEspecie;
    ControlDesign pesquisa =
        CaixaDeCampo(Kind::KVFind, "kvfNomeDoAnimal", Margem, LinhaDoAnimal, larguraDoNome);
    pesquisa.caption = "Animal";
    pesquisa.visible = false;
    pesquisa.toolTipTextOfTextBox = "Código, Nome ou Microchip";
    pesquisa.placeholder = "Código, nome ou microchip";
    return {
        SecaoDaFicha("lblAnimal", "Animal*", TopoDoAnimal),
        RotuloDeCampo("lblNomeDoAnimal", "N&ome", "kvcmbAnimal", Margem, LinhaDoAnimal),
        ComNomeAcessivel(CaixaDeCampo(Kind::KVComboBox, "kvcmbAnimal", Margem, LinhaDoAnimal, larguraDoNome),
                         "Nome do animal"),
        ComNomeAcessivel(pesquisa, "Animal"),
        RotuloDeCampo("lblSexoDoAnimal", "Sexo", "kvtxtSexoDoAnimal", esquerdaDoSexo, LinhaDoAnimal),
        CampoSomenteLeitura("kvtxtSexoDoAnimal", esquerdaDoSexo, LinhaDoAnimal, larguraDoSexo, 50),
        RotuloDeCampo("lblEspecieDoAnimal", "Espécie", "kvtxtEspecieDoAnimal", esquerdaDaEspecie,
                      LinhaDoAnimal),
        CampoSomenteLeitura("kvtxtEspecieDoAnimal", esquerdaDaEspecie, LinhaDoAnimal, larguraDaEspecie, 0),
        RotuloDeCampo("lblRacaDoAnimal", "Raça", "kvtxtRacaDoAnimal", EsquerdaDeBuscar, LinhaDoAnimal),
        CampoSomenteLeitura("kvtxtRacaDoAnimal", EsquerdaDeBuscar, LinhaDoAnimal, LarguraDaSituacao, 0),
        RotuloDeCampo("lblCorDoAnimal", "Cor", "kvtxtCorDoAnimal", EsquerdaDeSituacao, LinhaDoAnimal),
        CampoSomenteLeitura("kvtxtCorDoAnimal", EsquerdaDeSituacao, LinhaDoAnimal, LarguraDaSituacao, 50),
    };
}

std::vector<ControlDesign> Servico()
{
    constexpr Twips larguraDoTipo = EsquerdaDeReagendar - Vao - Margem;
    constexpr Twips larguraDoCodigo = 1500;
    constexpr Twips esquerdaDoNome = EsquerdaDeReagendar + larguraDoCodigo + Vao;
    return {
        SecaoDaFicha("lblServico", "Serviço*", TopoDoServico),
        RotuloDeCampo("lblTipoDoServico", "&Tipo", "kvcmbTiposDeServicos", Margem, PrimeiraLinhaDoServico),
        ComNomeAcessivel(CaixaDeCampo(Kind::KVComboBox, "kvcmbTiposDeServicos", Margem,
                                      PrimeiraLinhaDoServico, larguraDoTipo),
                         "Tipo de serviço"),
        RotuloDeCampo("lblCodigoDoServico", "Codi&go", "kvfCodigoDoServico", EsquerdaDeReagendar,
                      PrimeiraLinhaDoServico),
        ComNomeAcessivel(
            CampoDeCodigo("kvfCodigoDoServico", EsquerdaDeReagendar, PrimeiraLinhaDoServico, larguraDoCodigo),
            "Código do serviço"),
        RotuloDeCampo("lblNomeDoServico", "No&me", "kvfNomeDoServico", esquerdaDoNome,
                      PrimeiraLinhaDoServico),
        ComNomeAcessivel(CaixaDeCampo(Kind::KVFind, "kvfNomeDoServico", esquerdaDoNome,
                                      PrimeiraLinhaDoServico, BordaDireita - esquerdaDoNome),
                         "Nome do serviço"),
    };
}

std::vector<ControlDesign> Horario()
{
    constexpr Twips larguraDaData = 1750;
    constexpr Twips deslocamentoDaHora = larguraDaData + 75;
    constexpr Twips larguraDaHora = 1175;
    constexpr Twips esquerdaDoTempo = EsquerdaDeReagendar + deslocamentoDaHora + larguraDaHora + Vao;
    constexpr Twips esquerdaDoFuncionario = 8415;
    constexpr Twips linha = SegundaLinhaDoServico;
    return {
        RotuloDeCampo("lblDataHoraInicial", "Data e &hora inicial", "kvdtpDataInicial", Margem, linha),
        ComNomeAcessivel(CaixaDeCampo(Kind::KVDTPicker, "kvdtpDataInicial", Margem, linha, larguraDaData),
                         "Data inicial"),
        ComNomeAcessivel(
            CaixaDeCampo(Kind::KVTime, "kvtimHoraInicial", Margem + deslocamentoDaHora, linha, larguraDaHora),
            "Hora inicial"),
        RotuloDeCampo("lblDataHoraFinal", "Data e hora &final", "kvdtpDataFinal", EsquerdaDeReagendar, linha),
        ComNomeAcessivel(
            CaixaDeCampo(Kind::KVDTPicker, "kvdtpDataFinal", EsquerdaDeReagendar, linha, larguraDaData),
            "Data final"),
        ComNomeAcessivel(CaixaDeCampo(Kind::KVTime, "kvtimHoraFinal",
                                      EsquerdaDeReagendar + deslocamentoDaHora, linha, larguraDaHora),
                         "Hora final"),
        RotuloDeCampo("lblTempoDoServico", "Tempo do serviço", "kvtxtTempoDoServico", esquerdaDoTempo, linha),
        CampoSomenteLeitura("kvtxtTempoDoServico", esquerdaDoTempo, linha,
                            esquerdaDoFuncionario - Vao - esquerdaDoTempo, 50),
        RotuloDeCampo("lblNomeDoFuncionario", "F&uncionário(a)", "kvcmbFuncionarios", esquerdaDoFuncionario,
                      linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbFuncionarios", esquerdaDoFuncionario, linha,
                     BordaDireita - esquerdaDoFuncionario),
    };
}

/// What covers something comes to the front at run time: the note covers the repetition but on adding, and
/// the combo "Reagendar", while it stands alone, covers number and unit.
std::vector<ControlDesign> ObservacaoERepeticao()
{
    constexpr Twips linha = TerceiraLinhaDoServico;
    constexpr Twips esquerdaDoNumero = EsquerdaDeReagendar + LarguraDeReagendarComUnidade + 75;
    constexpr Twips larguraDoNumero = 520;
    constexpr Twips esquerdaDaUnidade = esquerdaDoNumero + larguraDoNumero + 75;
    ControlDesign numero =
        CaixaDeCampo(Kind::KVNumberBox, "kvnumNumeroDeSemanas", esquerdaDoNumero, linha, larguraDoNumero);
    numero.formatType = 1;
    numero.maxLength = 3;
    numero.backColor = colours::White;
    ControlDesign unidade = CaixaDeCampo(Kind::KVComboBox, "kvcmbReagendarPor", esquerdaDaUnidade, linha,
                                         EsquerdaDeReagendar + LarguraDeReagendarSozinho - esquerdaDaUnidade);
    unidade.tabStop = false;
    return {
        RotuloDeCampo("lblObservacao", "O&bservação", "kvtxtObservacaoDoServico", Margem, linha),
        CampoDeTexto("kvtxtObservacaoDoServico", Margem, linha, EsquerdaDeReagendar - Vao - Margem, 100),
        RotuloDeCampo("lblReagendar", "Reagendar", "kvcmbReagendar", EsquerdaDeReagendar, linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbReagendar", EsquerdaDeReagendar, linha,
                     LarguraDeReagendarSozinho),
        ComNomeAcessivel(numero, "Número de repetições"),
        ComNomeAcessivel(unidade, "Unidade da repetição"),
    };
}

std::vector<ControlDesign> TransporteESituacao()
{
    constexpr Twips linha = TerceiraLinhaDoServico;
    constexpr Twips larguraDoTransporte = EsquerdaDeSituacao - Vao - EsquerdaDeBuscar;
    constexpr Twips esquerdaDeLevar = 8415;
    return {
        RotuloDeCampo("lblBuscar", "Bu&scar", "kvcmbBuscar", EsquerdaDeBuscar, linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbBuscar", EsquerdaDeBuscar, linha, larguraDoTransporte),
        RotuloDeCampo("lblLevar", "Le&var", "kvcmbLevar", esquerdaDeLevar, linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbLevar", esquerdaDeLevar, linha, LarguraDaSituacao),
        RotuloDeCampo("lblSituacao", "S&ituação", "kvcmbSituacao", EsquerdaDeSituacao, linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbSituacao", EsquerdaDeSituacao, linha, LarguraDaSituacao),
    };
}

FormDesign Desenhar()
{
    FormDesign design{.name = "frmFichaCompleta",
                      .caption = "Agendamento completo",
                      .width = LarguraInterna + Moldura,
                      .height = AlturaInterna + MolduraETitulo,
                      .backColor = colours::White,
                      .guardsTyping = true,
                      .controls = Cabecalho()};
    Append(design.controls, Cliente());
    Append(design.controls, Animal());
    Append(design.controls, Servico());
    Append(design.controls, Horario());
    Append(design.controls, ObservacaoERepeticao());
    Append(design.controls, TransporteESituacao());
    Append(design.controls, RodapeDaFicha(TopoDosBotoes));
    Append(design.controls, DesenhoDaPlacaDeEspera());
    return design;
}

} // namespace

const FormDesign& DesenhoDefrmFichaCompleta()
{
    static const FormDesign design = Desenhar();
    return design;
}

} // namespace kova::agenda
