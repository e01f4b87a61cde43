#include "agenda/full_record/frmFichaCompleta_design.hpp"

#include "agenda/records/record_form.hpp"
#include "agenda/records/record_form_design.hpp"
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
            .foreColor = CorDoRotulo,
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
         .foreColor = CorDoRotulo},
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
        RotuloDaFicha("lblCodigoDoCliente", "&Codigo", "kvfCodigoDoCliente", Margem, PrimeiraLinhaDoCliente),
        ComNomeAcessivel(CampoDeCodigo("kvfCodigoDoCliente", Margem, PrimeiraLinhaDoCliente, larguraDoCodigo),
                         "Código do cliente"),
        RotuloDaFicha("lblApelidoOuNomeFantasiaDoCliente", "&Apelido ou nome fantasia",
                      "kvfApelidoOuNomeFantasiaDoCliente", esquerdaDoApelido, PrimeiraLinhaDoCliente),
        CampoDaFicha(Kind::KVFind, "kvfApelidoOuNomeFantasiaDoCliente", esquerdaDoApelido,
                     PrimeiraLinhaDoCliente, larguraDoApelido),
        RotuloDaFicha("lblNomeOuRazaoSocialDoCliente", "&Nome ou Razão Social",
                      "kvfNomeOuRazaoSocialDoCliente", EsquerdaDeBuscar, PrimeiraLinhaDoCliente),
        CampoDaFicha(Kind::KVFind, "kvfNomeOuRazaoSocialDoCliente", EsquerdaDeBuscar, PrimeiraLinhaDoCliente,
                     larguraDaDireita),
        RotuloDaFicha("lblEndereco", "&Endereço", "kvfEnderecoDoCliente", Margem, SegundaLinhaDoCliente),
        CampoDaFicha(Kind::KVFind, "kvfEnderecoDoCliente", Margem, SegundaLinhaDoCliente,
                     EsquerdaDeBuscar - Vao - Margem),
        RotuloDaFicha("lblCanalDeComunicacao", "Canal de comunicação", "kvtxtTiposECanaisDeComunicacao",
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
        CampoDaFicha(Kind::KVFind, "kvfNomeDoAnimal", Margem, LinhaDoAnimal, larguraDoNome);
    pesquisa.caption = "Animal";
    pesquisa.visible = false;
    pesquisa.toolTipTextOfTextBox = "Código, Nome ou Microchip";
    pesquisa.placeholder = "Código, nome ou microchip";
    return {
        SecaoDaFicha("lblAnimal", "Animal*", TopoDoAnimal),
        RotuloDaFicha("lblNomeDoAnimal", "N&ome", "kvcmbAnimal", Margem, LinhaDoAnimal),
        ComNomeAcessivel(CampoDaFicha(Kind::KVComboBox, "kvcmbAnimal", Margem, LinhaDoAnimal, larguraDoNome),
                         "Nome do animal"),
        ComNomeAcessivel(pesquisa, "Animal"),
        RotuloDaFicha("lblSexoDoAnimal", "Sexo", "kvtxtSexoDoAnimal", esquerdaDoSexo, LinhaDoAnimal),
        CampoSomenteLeitura("kvtxtSexoDoAnimal", esquerdaDoSexo, LinhaDoAnimal, larguraDoSexo, 50),
        RotuloDaFicha("lblEspecieDoAnimal", "Espécie", "kvtxtEspecieDoAnimal", esquerdaDaEspecie,
                      LinhaDoAnimal),
        CampoSomenteLeitura("kvtxtEspecieDoAnimal", esquerdaDaEspecie, LinhaDoAnimal, larguraDaEspecie, 0),
        RotuloDaFicha("lblRacaDoAnimal", "Raça", "kvtxtRacaDoAnimal", EsquerdaDeBuscar, LinhaDoAnimal),
        CampoSomenteLeitura("kvtxtRacaDoAnimal", EsquerdaDeBuscar, LinhaDoAnimal, LarguraDaSituacao, 0),
        RotuloDaFicha("lblCorDoAnimal", "Cor", "kvtxtCorDoAnimal", EsquerdaDeSituacao, LinhaDoAnimal),
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
        RotuloDaFicha("lblTipoDoServico", "&Tipo", "kvcmbTiposDeServicos", Margem, PrimeiraLinhaDoServico),
        ComNomeAcessivel(CampoDaFicha(Kind::KVComboBox, "kvcmbTiposDeServicos", Margem,
                                      PrimeiraLinhaDoServico, larguraDoTipo),
                         "Tipo de serviço"),
        RotuloDaFicha("lblCodigoDoServico", "Codi&go", "kvfCodigoDoServico", EsquerdaDeReagendar,
                      PrimeiraLinhaDoServico),
        ComNomeAcessivel(
            CampoDeCodigo("kvfCodigoDoServico", EsquerdaDeReagendar, PrimeiraLinhaDoServico, larguraDoCodigo),
            "Código do serviço"),
        RotuloDaFicha("lblNomeDoServico", "No&me", "kvfNomeDoServico", esquerdaDoNome,
                      PrimeiraLinhaDoServico),
        ComNomeAcessivel(CampoDaFicha(Kind::KVFind, "kvfNomeDoServico", esquerdaDoNome,
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
        RotuloDaFicha("lblDataHoraInicial", "Data e &hora inicial", "kvdtpDataInicial", Margem, linha),
        ComNomeAcessivel(CampoDaFicha(Kind::KVDTPicker, "kvdtpDataInicial", Margem, linha, larguraDaData),
                         "Data inicial"),
        ComNomeAcessivel(
            CampoDaFicha(Kind::KVTime, "kvtimHoraInicial", Margem + deslocamentoDaHora, linha, larguraDaHora),
            "Hora inicial"),
        RotuloDaFicha("lblDataHoraFinal", "Data e hora &final", "kvdtpDataFinal", EsquerdaDeReagendar, linha),
        ComNomeAcessivel(
            CampoDaFicha(Kind::KVDTPicker, "kvdtpDataFinal", EsquerdaDeReagendar, linha, larguraDaData),
            "Data final"),
        ComNomeAcessivel(CampoDaFicha(Kind::KVTime, "kvtimHoraFinal",
                                      EsquerdaDeReagendar + deslocamentoDaHora, linha, larguraDaHora),
                         "Hora final"),
        RotuloDaFicha("lblTempoDoServico", "Tempo do serviço", "kvtxtTempoDoServico", esquerdaDoTempo, linha),
        CampoSomenteLeitura("kvtxtTempoDoServico", esquerdaDoTempo, linha,
                            esquerdaDoFuncionario - Vao - esquerdaDoTempo, 50),
        RotuloDaFicha("lblNomeDoFuncionario", "F&uncionário(a)", "kvcmbFuncionarios", esquerdaDoFuncionario,
                      linha),
        CampoDaFicha(Kind::KVComboBox, "kvcmbFuncionarios", esquerdaDoFuncionario, linha,
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
        CampoDaFicha(Kind::KVNumberBox, "kvnumNumeroDeSemanas", esquerdaDoNumero, linha, larguraDoNumero);
    numero.formatType = 1;
    numero.maxLength = 3;
    numero.backColor = colours::White;
    ControlDesign unidade = CampoDaFicha(Kind::KVComboBox, "kvcmbReagendarPor", esquerdaDaUnidade, linha,
                                         EsquerdaDeReagendar + LarguraDeReagendarSozinho - esquerdaDaUnidade);
    unidade.tabStop = false;
    return {
        RotuloDaFicha("lblObservacao", "O&bservação", "kvtxtObservacaoDoServico", Margem, linha),
        CampoDeTexto("kvtxtObservacaoDoServico", Margem, linha, EsquerdaDeReagendar - Vao - Margem, 100),
        RotuloDaFicha("lblReagendar", "Reagendar", "kvcmbReagendar", EsquerdaDeReagendar, linha),
        CampoDaFicha(Kind::KVComboBox, "kvcmbReagendar", EsquerdaDeReagendar, linha,
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
        RotuloDaFicha("lblBuscar", "Bu&scar", "kvcmbBuscar", EsquerdaDeBuscar, linha),
        CampoDaFicha(Kind::KVComboBox, "kvcmbBuscar", EsquerdaDeBuscar, linha, larguraDoTransporte),
        RotuloDaFicha("lblLevar", "Le&var", "kvcmbLevar", esquerdaDeLevar, linha),
        CampoDaFicha(Kind::KVComboBox, "kvcmbLevar", esquerdaDeLevar, linha, LarguraDaSituacao),
        RotuloDaFicha("lblSituacao", "S&ituação", "kvcmbSituacao", EsquerdaDeSituacao, linha),
        CampoDaFicha(Kind::KVComboBox, "kvcmbSituacao", EsquerdaDeSituacao, linha, LarguraDaSituacao),
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
