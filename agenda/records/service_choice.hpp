#pragma once

#include "agenda/records/record_form.hpp"
#include "agenda/search/frmPesquisaDeServicos.hpp"

namespace kova::agenda {

// What the service lookups of the two record forms do alike. Failures go up to the caller.

/// The boxes of a record form that show its service.
struct CaixasDoServico {
    KVFind& kvfCodigoDoServico;
    KVFind& kvfNomeDoServico;
    KVTextBox& kvtxtTempoDoServico;
};

/// What a lookup without a hit says: of the name, or of the code where no name was asked for. It says
/// "produto" of a code.
Text MensagemDeServicoNaoEncontrado(const Text& Nome, Double Codigo, const Text& tipo);

/// The one service that was found: both boxes show a found record. The duration comes as "hh:mm"; what is no
/// time stays as it is.
void MostrarServicoEncontrado(const CaixasDoServico& caixas, const RecordSet& registros);
/// The service of the row that was chosen in the dialog.
void MostrarServicoEscolhido(const CaixasDoServico& caixas, const frmPesquisaDeServicos& pesquisa);

// The type follows from the service where all types were searched, which is row 0; only then it is read. The
// form's guard is set for the combo's Click; a type that the combo does not have changes nothing.
void SelecionarTipoEncontrado(KVComboBox& kvcmbTiposDeServicos, EstadoDaFicha& estado,
                              const RecordSet& registros);
void SelecionarTipoEscolhido(KVComboBox& kvcmbTiposDeServicos, EstadoDaFicha& estado,
                             const frmPesquisaDeServicos& pesquisa);

/// A dialog with the services to choose from, loaded and not yet shown; it does not fill its types.
std::shared_ptr<frmPesquisaDeServicos> AbrirPesquisaDeServicos(RecordSet& registros);
/// Puts the dialog's combo on a row without a new search: -1 is none.
void SelecionarTipoNaPesquisa(frmPesquisaDeServicos& pesquisa, Integer linha);

} // namespace kova::agenda
