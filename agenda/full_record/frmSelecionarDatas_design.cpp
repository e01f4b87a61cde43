#include "agenda/full_record/frmSelecionarDatas_design.hpp"

#include "agenda/full_record/frmSelecionarDatas.hpp"
#include "agenda/records/record_form_design.hpp"
#include "agenda/shared/wait_plate.hpp"

#include <string>

namespace kova::agenda {

namespace {

using namespace medidas_da_ficha;

// Two columns as wide as a row of caption, date and time; the form is as wide as the record form whose place
// it takes.
constexpr Twips EntreColunas = 585;
constexpr Twips LarguraDaColuna = (BordaDireita - Margem - EntreColunas) / 2;
constexpr Twips SegundaColuna = Margem + LarguraDaColuna + EntreColunas;
constexpr Twips LarguraDaData = 1750;
constexpr Twips LarguraDaHora = 1175;
constexpr Twips EntreDataEHora = 75;
constexpr Twips RecuoDaHora = LarguraDaColuna - LarguraDaHora;
constexpr Twips RecuoDaData = RecuoDaHora - EntreDataEHora - LarguraDaData;

constexpr Twips TopoDoAgendamento = 930;
constexpr Twips PrimeiraLinha = TopoDoAgendamento + PassoDaSecao;
constexpr Twips SegundaLinha = PrimeiraLinha + PassoDasLinhas;
constexpr Twips TopoDasDatas = SegundaLinha + PassoDasLinhas + 60;
/// From a row of dates to the next one.
constexpr Twips PassoDasDatas = AlturaDoCampo + 105;
constexpr int LinhasPorColuna = 6;
constexpr Twips TopoDosBotoes = TopoDasDatas + PassoDaSecao + PassoDasDatas * LinhasPorColuna + 120;
constexpr Twips AlturaInterna = TopoDosBotoes + AlturaDoCampo + 240;

void Append(std::vector<ControlDesign>& all, std::vector<ControlDesign> more)
{
    all.insert(all.end(), more.begin(), more.end());
}

std::vector<ControlDesign> Agendamento()
{
    constexpr int limite = 50;
    return {
        CabecalhoDaFicha("Selecionar datas"),
        SecaoDaFicha("lblAgendamento", "Agendamento*", TopoDoAgendamento),
        RotuloDeCampo("lblCliente", "Cliente", "kvtxtApelidoDoCliente", Margem, PrimeiraLinha),
        CampoSomenteLeitura("kvtxtApelidoDoCliente", Margem, PrimeiraLinha, LarguraDaColuna, limite),
        RotuloDeCampo("lblAnimal", "Animal", "kvtxtNomeDoAnimal", SegundaColuna, PrimeiraLinha),
        CampoSomenteLeitura("kvtxtNomeDoAnimal", SegundaColuna, PrimeiraLinha, LarguraDaColuna, limite),
        RotuloDeCampo("lblServico", "Serviço", "kvtxtNomeDoServico", Margem, SegundaLinha),
        CampoSomenteLeitura("kvtxtNomeDoServico", Margem, SegundaLinha, LarguraDaColuna, limite),
        RotuloDeCampo("lblTempoDoServico", "Tempo do serviço", "kvtxtTempoDoServico", SegundaColuna,
                      SegundaLinha),
        CampoSomenteLeitura("kvtxtTempoDoServico", SegundaColuna, SegundaLinha, LarguraDaData, limite),
    };
}

/// Caption, date and time beside each other.
std::vector<ControlDesign> LinhaDeData(int linha)
{
    const std::string numero = std::to_string(linha + 1);
    const Twips esquerda = linha < LinhasPorColuna ? Margem : SegundaColuna;
    const Twips topo =
        TopoDasDatas + PassoDaSecao + PassoDasDatas * static_cast<Twips>(linha % LinhasPorColuna);
    std::vector<ControlDesign> controles{
        RotuloDeCampo("lblDataHoraInicial", ("Data e hora inicial " + numero).c_str(), "kvdtpDataInicial",
                      esquerda, topo + (AlturaDoCampo - AlturaDoRotulo) / 2),
        ComNomeAcessivel(CaixaDeCampo(WidgetKind::KVDTPicker, "kvdtpDataInicial", esquerda + RecuoDaData,
                                      topo - AlturaDoRotulo, LarguraDaData),
                         ("Data inicial " + numero).c_str()),
        ComNomeAcessivel(CaixaDeCampo(WidgetKind::KVTime, "kvtimHoraInicial", esquerda + RecuoDaHora,
                                      topo - AlturaDoRotulo, LarguraDaHora),
                         ("Hora inicial " + numero).c_str()),
    };
    for (ControlDesign& controle : controles)
        controle.index = linha;
    return controles;
}

FormDesign Desenhar()
{
    FormDesign design{.name = "frmSelecionarDatas",
                      .caption = "Selecionar datas",
                      .width = LarguraInterna + Moldura,
                      .height = AlturaInterna + MolduraETitulo,
                      .backColor = colours::White,
                      .guardsTyping = true,
                      .controls = Agendamento()};
    design.controls.push_back(SecaoDaFicha("lblDatas", "Datas*", TopoDasDatas));
    for (int linha = 0; linha < static_cast<int>(frmSelecionarDatas::Linhas); ++linha)
        Append(design.controls, LinhaDeData(linha));
    std::vector<ControlDesign> rodape = RodapeDaFicha(TopoDosBotoes);
    // This form's second button only leaves; it has no other role and so another name.
    rodape.back().name = "kvcmdCancelar";
    Append(design.controls, std::move(rodape));
    Append(design.controls, DesenhoDaPlacaDeEspera());
    return design;
}

} // namespace

const FormDesign& DesenhoDefrmSelecionarDatas()
{
    static const FormDesign design = Desenhar();
    return design;
}

} // namespace kova::agenda
