#pragma once

#include "agenda/contracts/reports.hpp"
#include "agenda/contracts/widgets.hpp"

#include <memory>

namespace kova::agenda {

/// What TipoDaListaASerImpressa takes; any other number prints nothing.
namespace tipo_da_lista {
inline constexpr Integer Agendamentos = 0;
inline constexpr Integer Transporte = 1;
} // namespace tipo_da_lista

/// The filters of a list to be printed. It selects the day's appointments anew, whatever the list on the
/// screen shows of them.
///
/// Its opener says which list, fills the three combos that the list has too, and calls
/// MontarExibirFormulario; closing unloads it. frmImprimirAgenda.cpp opens and closes it,
/// frmImprimirAgenda_printing.cpp prints.
class frmImprimirAgenda {
public:
    /// A new dialog, hidden.
    static std::shared_ptr<frmImprimirAgenda> Criar();
    /// Unloads the form.
    ~frmImprimirAgenda();
    frmImprimirAgenda(const frmImprimirAgenda&) = delete;
    frmImprimirAgenda& operator=(const frmImprimirAgenda&) = delete;

    void TipoDaListaASerImpressa(Integer Tipo) { TipoDaLista = Tipo; }
    /// Fills the transport combo, dims the shell and shows the form modally; returns when it is closed, which
    /// with a preview is after that. Answers 0, also after a reported failure.
    Integer MontarExibirFormulario();

    FormRef Formulario;
    KVTheme& kvTheme = Bind<KVTheme>(Formulario, "KVTheme");
    KVComboBox& kvcmbSituacao = Bind<KVComboBox>(Formulario, "kvcmbSituacao");
    KVComboBox& kvcmbTiposDeServicos = Bind<KVComboBox>(Formulario, "kvcmbTiposDeServicos");
    KVComboBox& kvcmbFuncionarios = Bind<KVComboBox>(Formulario, "kvcmbFuncionarios");
    KVComboBox& kvcmbTransporte = Bind<KVComboBox>(Formulario, "kvcmbTransporte");
    KVCommandButton& kvcmdVisualizarImpressao = Bind<KVCommandButton>(Formulario, "kvcmdVisualizarImpressao");
    KVCommandButton& kvcmdCancelar = Bind<KVCommandButton>(Formulario, "kvcmdCancelar");

private:
    frmImprimirAgenda();
    void Form_Load();
    void AoDescarregar();
    void kvcmdVisualizarImpressao_Click();
    void kvcmdCancelar_Click();

    void PreencherComboBoxDeTransporte();
    /// 0: nothing here can be wrong.
    Integer ValidarCampos();

    /// 1 where company or appointments could not be selected; 0 when the preview was closed, but also where
    /// there is nothing to print and after a reported failure.
    Integer ImprimirLista();
    void ImprimirAgendamentos(const RecordSetRef& agendamentos, const RecordSet& empresa, Integer& Ponto);
    Text Subtitulo() const;

    Integer TipoDaLista = tipo_da_lista::Agendamentos;
};

} // namespace kova::agenda
