#pragma once

#include "agenda/contracts/widgets.hpp"
#include "agenda/shared/day_list.hpp"

#include <functional>
#include <memory>

namespace kova::agenda {

// What the two record forms do alike.

/// What a record form is about and in the middle of. Each of the two holds one.
struct EstadoDaFicha {
    /// The operation that the form is in; see `operacao`.
    Integer TipoDeOperacao = 0;
    /// Whether the business tier stored the change, or the user closed a detail view. A change that the user
    /// confirmed for a Sunday or holiday counts as stored: the second answer is not looked at.
    bool OperacaoConcluida = false;
    /// The appointment's key, 0 on adding.
    Double NumeroDeLancamento = 0;
    /// Swallows the next event of a guarded control; the handler that it stops clears it.
    bool IgnorarEventoDeCampo = false;
    /// Each skips one step of the next ExibirFicha.
    bool NaoAplicarFundoEscuro = false;
    bool NaoExibirFormulario = false;
    bool NaoRemoverFundoEscuro = false;
};

/// Whether the guard swallows this event; it is cleared then.
bool EventoIgnorado(EstadoDaFicha& estado);
/// Dims the shell, shows the form modally and takes the dimming away afterwards; each of the three steps is
/// skipped once where its flag is set. Failures go up to the caller.
void ExibirFicha(Form& formulario, EstadoDaFicha& estado);

/// A record form as the list opens it: the list fills its three combos, runs it, reads OperacaoConcluida and
/// unloads it.
struct FichaDaLista {
    /// The form itself, which lives as long as this.
    std::shared_ptr<void> Dona;
    FormRef Formulario;
    KVComboBox& kvcmbTiposDeServicos;
    KVComboBox& kvcmbFuncionarios;
    KVComboBox& kvcmbSituacao;
    const EstadoDaFicha& Estado;
    /// Fills the form for an operation and shows it; returns when it has been closed.
    std::function<void(Integer Operacao)> MontarExibirFormulario;
};

/// Gives a button its role when the form opens.
void EscreverBotao(KVCommandButton& botao, const Text& legenda, const Text& dica);
/// Changes the role of a button that shows another one: the three tool-tip texts are blanked first.
void ReescreverBotao(KVCommandButton& botao, const Text& legenda, const Text& dica);

/// Puts every label of the form back to its normal colour, but for the section heads and the legend.
void RestaurarCorDosRotulos(Form& formulario);
/// Lets the screen come to rest, turns the label red and gives the field the focus.
void MarcarCampoRecusado(Label& rotulo, Widget& campo);

/// Number kept for the selected row, a Long; the Integer 0 where none is selected.
Value ItemDataOuZero(const KVComboBox& combo);
/// First row whose number is that one, -1 where there is none. The combo is not moved.
Integer LinhaDoItemData(const KVComboBox& combo, Double numero);
/// The same for the number in a grid's cell. Fails with 13 where the combo has rows and the cell is no
/// number.
Integer LinhaDaCelula(const KVComboBox& combo, const Text& celula);

/// Selects the row whose number is in the cell; where there is none, nothing is written. The combo's Click is
/// raised by the write.
void SelecionarPelaCelula(KVComboBox& combo, const Text& celula);
/// The list of the day. Fails with 91 where there is none.
std::shared_ptr<const ListaDoDia> ListaAberta();
/// A cell of its selected row.
Text CelulaSelecionadaDaLista(Long coluna);

/// A search by a box that asks too little: fewer than three characters in one that takes texts. Says so,
/// opens the box again, and answers true.
bool PesquisaRecusadaPorTextoCurto(KVFind& caixa);
/// The same message and the box open again, where the form itself has found the text too short.
void PedirTresCaracteres(KVFind& caixa);
/// Two boxes that show one record wait for a search by either: the other one is emptied, the one that was
/// used has the focus.
void EsvaziarCaixasDePesquisa(KVFind& origem, KVFind& outra);

/// What becomes of the search boxes when the fields are switched.
enum class CaixasDePesquisa { Ficam, EsperamPesquisa };
/// Walks all controls and switches the combos and the boxes of texts, dates, times and searches, but not
/// those of numbers; a search box may be emptied and wait for a search.
void HabilitarCamposDeEdicao(Form& formulario, bool habilitar, CaixasDePesquisa caixas);

/// "Código N | Incluído em dd/mm/yyyy"; a record about to be deleted has a colon and doubled blanks in it.
/// `carimbo` is the grid's cell; one that is no date and time stands there as it is.
Text CarimboDeInclusao(Double numeroDeLancamento, const Text& carimbo, Integer tipoDeOperacao);
/// "Alterado em dd/mm/yyyy"; empty where the cell is blank.
Text CarimboDeAlteracao(const Text& carimbo);

/// The fields by which a record form works out when a service ends.
struct CamposDoHorario {
    KVDTPicker& kvdtpDataInicial;
    KVTime& kvtimHoraInicial;
    KVDTPicker& kvdtpDataFinal;
    KVTime& kvtimHoraFinal;
    KVTextBox& kvtxtTempoDoServico;
};
/// The start time lost the focus: asks about a time that has passed and fills the end from the start and the
/// duration; without a duration only the end's date, which is the start's. Does nothing where date or time is
/// half-typed, empty or impossible; saving tells of it. Fails with 13 where there is a duration that cannot
/// be read as a time.
void PreencherTerminoDoServico(const CamposDoHorario& campos);

} // namespace kova::agenda
