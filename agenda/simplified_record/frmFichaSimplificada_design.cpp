#include "agenda/simplified_record/frmFichaSimplificada_design.hpp"

#include "agenda/records/record_form_design.hpp"
#include "agenda/shared/wait_plate.hpp"

namespace kova::agenda {

namespace {

using namespace medidas_da_ficha;
using Kind = WidgetKind;

// Edges that the boxes of several rows share.
constexpr Twips SegundaColuna = 3460;
constexpr Twips TerceiraColuna = 5085;
constexpr Twips QuartaColuna = 7195;
constexpr Twips QuintaColuna = 9620;

constexpr Twips TopoDoCliente = 930;
constexpr Twips LinhaDoCliente = TopoDoCliente + PassoDaSecao;
constexpr Twips TopoDoAnimal = LinhaDoCliente + PassoDasLinhas + 60;
constexpr Twips LinhaDoAnimal = TopoDoAnimal + PassoDaSecao;
constexpr Twips TopoDoServico = LinhaDoAnimal + PassoDasLinhas + 60;
constexpr Twips PrimeiraLinhaDoServico = TopoDoServico + PassoDaSecao;
constexpr Twips SegundaLinhaDoServico = PrimeiraLinhaDoServico + PassoDasLinhas;
constexpr Twips TerceiraLinhaDoServico = SegundaLinhaDoServico + PassoDasLinhas;
constexpr Twips TopoDosBotoes = TerceiraLinhaDoServico + PassoDasLinhas + 120;
constexpr Twips AlturaInterna = TopoDosBotoes + AlturaDoCampo + 240;

std::vector<ControlDesign> Cliente()
{
    constexpr Twips linha = LinhaDoCliente;
    ControlDesign canais = CampoDeTexto("kvtxtCanaisDeComunicacaoDoCliente", QuartaColuna, linha,
                                        BordaDireita - QuartaColuna, 50);
    canais.toolTipText = "Endereço, telefone, celular, E-mail...";
    return {
        SecaoDaFicha("lblCliente", "Cliente*", TopoDoCliente),
        RotuloDeCampo("lblNomeOuRazaoSocialDoCliente", "&Nome ou razão social",
                      "kvtxtNomeOuRazaoSocialDoCliente", Margem, linha),
        CampoDeTexto("kvtxtNomeOuRazaoSocialDoCliente", Margem, linha, QuartaColuna - Vao - Margem, 100),
        RotuloDeCampo("lblCanaisDeComunicacaoDoCliente", "Can&ais de comunicação",
                      "kvtxtCanaisDeComunicacaoDoCliente", QuartaColuna, linha),
        canais,
    };
}

std::vector<ControlDesign> Animal()
{
    constexpr Twips linha = LinhaDoAnimal;
    return {
        SecaoDaFicha("lblAnimal", "Animal*", TopoDoAnimal),
        RotuloDeCampo("lblNomeDoAnimal", "N&ome", "kvtxtNomeDoAnimal", Margem, linha),
        ComNomeAcessivel(CampoDeTexto("kvtxtNomeDoAnimal", Margem, linha, SegundaColuna - Vao - Margem, 100),
                         "Nome do animal"),
        RotuloDeCampo("lblSexoDoAnimal", "Se&xo", "kvcmbSexoDoAnimal", SegundaColuna, linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbSexoDoAnimal", SegundaColuna, linha,
                     TerceiraColuna - Vao - SegundaColuna),
        RotuloDeCampo("lblEspecieDoAnimal", "&Espécie", "kvcmbEspeciesDeAnimais", TerceiraColuna, linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbEspeciesDeAnimais", TerceiraColuna, linha,
                     QuartaColuna - Vao - TerceiraColuna),
        RotuloDeCampo("lblRacaDoAnimal", "&Raça", "kvcmbRacasDeAnimais", QuartaColuna, linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbRacasDeAnimais", QuartaColuna, linha,
                     QuintaColuna - Vao - QuartaColuna),
        RotuloDeCampo("lblCorDoAnimal", "&Cor", "kvtxtCorDoAnimal", QuintaColuna, linha),
        CampoDeTexto("kvtxtCorDoAnimal", QuintaColuna, linha, BordaDireita - QuintaColuna, 50),
    };
}

std::vector<ControlDesign> Servico()
{
    constexpr Twips linha = PrimeiraLinhaDoServico;
    return {
        SecaoDaFicha("lblServico", "Serviço*", TopoDoServico),
        RotuloDeCampo("lblTipoDoServico", "&Tipo", "kvcmbTiposDeServicos", Margem, linha),
        ComNomeAcessivel(CaixaDeCampo(Kind::KVComboBox, "kvcmbTiposDeServicos", Margem, linha,
                                      SegundaColuna - Vao - Margem),
                         "Tipo de serviço"),
        RotuloDeCampo("lblCodigoDoServico", "Codi&go", "kvfCodigoDoServico", SegundaColuna, linha),
        ComNomeAcessivel(
            CampoDeCodigo("kvfCodigoDoServico", SegundaColuna, linha, TerceiraColuna - Vao - SegundaColuna),
            "Código do serviço"),
        RotuloDeCampo("lblNomeDoServico", "No&me", "kvfNomeDoServico", TerceiraColuna, linha),
        ComNomeAcessivel(CaixaDeCampo(Kind::KVFind, "kvfNomeDoServico", TerceiraColuna, linha,
                                      BordaDireita - TerceiraColuna),
                         "Nome do serviço"),
    };
}

std::vector<ControlDesign> Horario()
{
    constexpr Twips larguraDaData = 1750;
    constexpr Twips deslocamentoDaHora = larguraDaData + 75;
    constexpr Twips larguraDaHora = SegundaColuna - Vao - Margem - deslocamentoDaHora;
    constexpr Twips esquerdaDoTempo = SegundaColuna + deslocamentoDaHora + larguraDaHora + Vao;
    constexpr Twips esquerdaDoFuncionario = 8415;
    constexpr Twips linha = SegundaLinhaDoServico;
    const auto data = [](const char* nome, Twips esquerda, const char* acessivel) {
        return ComNomeAcessivel(CaixaDeCampo(Kind::KVDTPicker, nome, esquerda, linha, larguraDaData),
                                acessivel);
    };
    const auto hora = [](const char* nome, Twips esquerda, const char* acessivel) {
        return ComNomeAcessivel(
            CaixaDeCampo(Kind::KVTime, nome, esquerda + deslocamentoDaHora, linha, larguraDaHora), acessivel);
    };
    return {
        RotuloDeCampo("lblDataHoraInicial", "Data e &hora inicial", "kvdtpDataInicial", Margem, linha),
        data("kvdtpDataInicial", Margem, "Data inicial"),
        hora("kvtimHoraInicial", Margem, "Hora inicial"),
        RotuloDeCampo("lblDataHoraFinal", "Data e hora &final", "kvdtpDataFinal", SegundaColuna, linha),
        data("kvdtpDataFinal", SegundaColuna, "Data final"),
        hora("kvtimHoraFinal", SegundaColuna, "Hora final"),
        RotuloDeCampo("lblTempoDoServico", "Tempo do serviço", "kvtxtTempoDoServico", esquerdaDoTempo, linha),
        CampoSomenteLeitura("kvtxtTempoDoServico", esquerdaDoTempo, linha,
                            esquerdaDoFuncionario - Vao - esquerdaDoTempo, 50),
        RotuloDeCampo("lblNomeDoFuncionario", "F&uncionário", "kvcmbFuncionarios", esquerdaDoFuncionario,
                      linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbFuncionarios", esquerdaDoFuncionario, linha,
                     BordaDireita - esquerdaDoFuncionario),
    };
}

std::vector<ControlDesign> ObservacaoESituacao()
{
    constexpr Twips linha = TerceiraLinhaDoServico;
    return {
        RotuloDeCampo("lblObservacaoDoServico", "O&bservação", "kvtxtObservacaoDoServico", Margem, linha),
        CampoDeTexto("kvtxtObservacaoDoServico", Margem, linha, QuintaColuna - Vao - Margem, 100),
        RotuloDeCampo("lblSituacao", "S&ituação", "kvcmbSituacao", QuintaColuna, linha),
        CaixaDeCampo(Kind::KVComboBox, "kvcmbSituacao", QuintaColuna, linha, BordaDireita - QuintaColuna),
    };
}

FormDesign Desenhar()
{
    FormDesign design{.name = "frmFichaSimplificada",
                      .caption = "Agendamento simplificado",
                      .width = LarguraInterna + Moldura,
                      .height = AlturaInterna + MolduraETitulo,
                      .backColor = colours::White,
                      .guardsTyping = true,
                      .controls = {CabecalhoDaFicha("Agendamento simplificado")}};
    for (const auto& parte : {Cliente(), Animal(), Servico(), Horario(), ObservacaoESituacao(),
                              RodapeDaFicha(TopoDosBotoes), DesenhoDaPlacaDeEspera()})
        design.controls.insert(design.controls.end(), parte.begin(), parte.end());
    return design;
}

} // namespace

const FormDesign& DesenhoDefrmFichaSimplificada()
{
    static const FormDesign design = Desenhar();
    return design;
}

} // namespace kova::agenda
