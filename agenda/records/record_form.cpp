#include "agenda/records/record_form.hpp"

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modFundoEscuro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/palette.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace kova::agenda {

namespace {

constexpr std::array RotulosSemCampo{"lblCliente", "lblAnimal", "lblServico",
                                     "lblObservacaoDeCamposObrigatorios"};

bool Contem(const Text& texto, char marca) { return texto.find(marca) != Text::npos; }

/// Date of a stamp "dd/mm/yyyy hh:mm:ss", or the cell as it stands where it is none.
Text DataDoCarimbo(const Text& carimbo)
{
    const auto momento = ParseDateTime(carimbo);
    return momento ? FormatDate(momento->date) : carimbo;
}

Integer MinutosDoServico(const Text& tempo)
{
    return RoundToInteger(Val(Left(tempo, 2)) * 60 + Val(Right(tempo, 2)));
}

bool EhCampoDeEdicao(WidgetKind especie)
{
    switch (especie) {
    case WidgetKind::KVTextBox:
    case WidgetKind::KVComboBox:
    case WidgetKind::KVDTPicker:
    case WidgetKind::KVTime:
    case WidgetKind::KVFind: return true;
    default: return false;
    }
}

/// Whether the user lets a start stand that has passed already.
bool HoraInicialConfirmada(Date data, TimeOfDay hora)
{
    const DateTime agora = ThePlatform().Clock().Now();
    if (data != agora.date || FormatTime(hora) >= FormatTime(agora.time))
        return true;
    return Perguntar("Hora inicial é menor que o hora atual. Confirma?");
}

} // namespace

bool EventoIgnorado(EstadoDaFicha& estado) { return std::exchange(estado.IgnorarEventoDeCampo, false); }

void ExibirFicha(Form& formulario, EstadoDaFicha& estado)
{
    if (!std::exchange(estado.NaoAplicarFundoEscuro, false)) {
        Integer opcao = 0;
        AplicarFundoEscuro(Principal.HandleDaJanelaPrincipal, opcao);
    }
    if (!std::exchange(estado.NaoExibirFormulario, false))
        formulario.Show(ShowMode::Modal);
    if (std::exchange(estado.NaoRemoverFundoEscuro, false))
        return;
    ThePlatform().Toolkit().ProcessPendingEvents();
    if (const auto lista = Principal.FormularioDaLista)
        lista->Redesenhar();
    RemoverFundoEscuro(Principal.HandleDaJanelaPrincipal);
}

void EscreverBotao(KVCommandButton& botao, const Text& legenda, const Text& dica)
{
    botao.Caption(legenda);
    botao.ToolTipText(dica);
}

void ReescreverBotao(KVCommandButton& botao, const Text& legenda, const Text& dica)
{
    botao.Caption(legenda);
    botao.ToolTipTitle("");
    botao.ToolTipText("");
    botao.ToolTipBody("");
    botao.ToolTipText(dica);
}

void RestaurarCorDosRotulos(Form& formulario)
{
    for (Widget* controle : formulario.Controls()) {
        auto* rotulo = As<Label>(*controle);
        if (rotulo && std::ranges::find(RotulosSemCampo, rotulo->Name()) == RotulosSemCampo.end())
            rotulo->ForeColor(cores::Rotulo);
    }
}

void MarcarCampoRecusado(Label& rotulo, Widget& campo)
{
    ThePlatform().Toolkit().ProcessPendingEvents();
    rotulo.ForeColor(cores::RotuloRecusado);
    campo.SetFocus();
}

Value ItemDataOuZero(const KVComboBox& combo)
{
    const Integer linha = combo.ListIndex();
    return linha == -1 ? Value(Integer{0}) : Value(combo.ItemData(linha));
}

Integer LinhaDoItemData(const KVComboBox& combo, Double numero)
{
    const Integer linhas = combo.ListCount();
    for (Integer linha = 0; linha < linhas; ++linha)
        if (combo.ItemData(linha) == numero)
            return linha;
    return -1;
}

Integer LinhaDaCelula(const KVComboBox& combo, const Text& celula)
{
    return combo.ListCount() == 0 ? Integer{-1} : LinhaDoItemData(combo, Value(celula).ToDouble());
}

void SelecionarPelaCelula(KVComboBox& combo, const Text& celula)
{
    const Integer linha = LinhaDaCelula(combo, celula);
    if (linha != -1)
        combo.ListIndex(linha);
}

std::shared_ptr<const ListaDoDia> ListaAberta()
{
    if (!Principal.FormularioDaLista)
        throw Failure(FailureNumber::NoObject);
    return Principal.FormularioDaLista;
}

Text CelulaSelecionadaDaLista(Long coluna)
{
    const auto lista = ListaAberta();
    return lista->Grade().TextMatrix(lista->Grade().RowSel(), coluna);
}

bool PesquisaRecusadaPorTextoCurto(KVFind& caixa)
{
    constexpr std::size_t minimoDeCaracteres = 3;
    constexpr Long estiloDeTexto = 1;
    if (Length(caixa.Text()) >= minimoDeCaracteres || caixa.Style() != estiloDeTexto)
        return false;
    PedirTresCaracteres(caixa);
    return true;
}

void PedirTresCaracteres(KVFind& caixa)
{
    caixa.Enabled(true);
    ExibirInformacao("Informe 3 caracteres ou mais para iniciar a pesquisa.");
}

void EsvaziarCaixasDePesquisa(KVFind& origem, KVFind& outra)
{
    outra.Status(find_status::Clear);
    outra.Text("");
    outra.Enabled(true);
    origem.Enabled(true);
    origem.SetFocus();
}

void HabilitarCamposDeEdicao(Form& formulario, bool habilitar, CaixasDePesquisa caixas)
{
    for (Widget* controle : formulario.Controls()) {
        if (!EhCampoDeEdicao(controle->Kind()))
            continue;
        controle->Enabled(habilitar);
        auto* pesquisa = As<KVFind>(*controle);
        if (pesquisa && caixas == CaixasDePesquisa::EsperamPesquisa) {
            pesquisa->Status(find_status::Clear);
            pesquisa->Text("");
        }
    }
}

Text CarimboDeInclusao(Double numeroDeLancamento, const Text& carimbo, Integer tipoDeOperacao)
{
    const Text data = DataDoCarimbo(carimbo);
    if (tipoDeOperacao == operacao::Excluir)
        return "Código: " + TextOf(numeroDeLancamento) + "  |  Incluído em " + data;
    return "Código " + TextOf(numeroDeLancamento) + " | Incluído em " + data;
}

Text CarimboDeAlteracao(const Text& carimbo)
{
    if (Trim(carimbo).empty())
        return {};
    return "Alterado em " + DataDoCarimbo(carimbo);
}

void PreencherTerminoDoServico(const CamposDoHorario& campos)
{
    // Both must be complete; what is impossible, saving refuses with a message of its own.
    const Text textoDaHora = campos.kvtimHoraInicial.Text();
    const Text textoDaData = campos.kvdtpDataInicial.Text();
    if (Contem(textoDaHora, '_') || Contem(textoDaData, '_'))
        return;
    const auto hora = ParseTime(textoDaHora);
    const auto data = ParseDate(textoDaData);
    if (!hora || !data)
        return;

    // A start that has passed is asked about.
    if (!HoraInicialConfirmada(*data, *hora)) {
        campos.kvtimHoraInicial.SetFocus();
        return;
    }

    // Without a duration the service ends on the day it starts, and the end time stays.
    const Text tempo = campos.kvtxtTempoDoServico.Text();
    const Integer minutos = MinutosDoServico(tempo);
    if (minutos == 0) {
        campos.kvdtpDataFinal.Text(textoDaData);
        return;
    }

    // A service that passes midnight ends on the next day.
    const TimeOfDay duracao = RequireTime(tempo);
    const Long minutosDaDuracao = duracao.hour * 60L + duracao.minute;
    campos.kvtimHoraFinal.Text(FormatTime(AddMinutes({*data, *hora}, minutosDaDuracao).time));
    campos.kvdtpDataFinal.Text(FormatDate(AddMinutes({*data, *hora}, minutos).date));
}

} // namespace kova::agenda
