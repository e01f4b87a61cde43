#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/widgets.hpp"

#include <memory>

namespace kova::agenda {

/// The modal picker of services. Its search runs inside one service type.
///
/// Whoever opens it writes EfetuarOPreenchimentoDaComboboxTiposDeServicos and FormularioDeConsultaDePreco,
/// calls ConfigurarGrade and PreencherGrade, puts rows of its own into kvcmbTiposDeServicos, sets the
/// module's IgnorarClickDoTipoNaPesquisa and writes ListIndex, shows it modally, reads RegistroSelecionado
/// and then the columns of msfgGrade at RowSel, and unloads it. service_choice.hpp has these steps.
class frmPesquisaDeServicos {
public:
    /// A new dialog, not yet loaded.
    static std::shared_ptr<frmPesquisaDeServicos> Criar();

    /// Loads the dialog where it is not, and empties and hides the grid: one row, all columns. Answers 0,
    /// also after a reported failure.
    Integer ConfigurarGrade();
    /// Shows the services found, from the first record on. Answers 0, also after a reported failure.
    Integer PreencherGrade(RecordSet& registros);
    /// Brings the wait plate to the front, in the middle.
    void CentralizarpicMensagem();
    /// True shows the wait plate and waits one second; nothing happens while the dialog is not visible.
    void ExibirOcultarpicMensagem(bool Exibir);

    FormRef Formulario;
    KVTheme& kvTheme = Bind<KVTheme>(Formulario, "kvTheme");
    Label& lblTipoDeServico = Bind<Label>(Formulario, "lblTipoDeServico");
    KVComboBox& kvcmbTiposDeServicos = Bind<KVComboBox>(Formulario, "kvcmbTiposDeServicos");
    Label& lblCodigoOuNome = Bind<Label>(Formulario, "lblCodigoOuNome");
    KVFind& kvfndCodigoOuNome = Bind<KVFind>(Formulario, "kvfndCodigoOuNome");
    MSFlexGrid& msfgGrade = Bind<MSFlexGrid>(Formulario, "msfgGrade");
    KVCommandButton& kvcmdFechar = Bind<KVCommandButton>(Formulario, "kvcmdFechar");
    PictureBox& picMensagem = Bind<PictureBox>(Formulario, "picMensagem");

    /// Whether loading fills the types. The record forms bring rows of their own.
    bool EfetuarOPreenchimentoDaComboboxTiposDeServicos = false;
    /// Kept for a caller; nothing in the dialog reads it.
    bool FormularioDeConsultaDePreco = false;
    /// A row was accepted. False again when the dialog is shown or unloaded.
    bool RegistroSelecionado = false;
    /// Swallows the next Click of the search box.
    bool IgnorarPesquisa = false;

private:
    frmPesquisaDeServicos();
    void LigarEventos();

    void PreencherComboboxTiposDeServicos();
    bool PesquisarServico();
    bool ValidarCampos();

    void Form_Load();
    void Form_Activate();
    void Form_Resize();
    void Form_Unload();
    void kvcmbTiposDeServicos_Click();
    void kvfndCodigoOuNome_Click();
    void msfgGrade_Click();
    void kvcmdFechar_Click();
};

/// Columns of the dialog's grid that its callers read.
namespace colunas_de_servicos {
inline constexpr Long Codigo = 1;
inline constexpr Long Nome = 2;
inline constexpr Long NumeroDoTipoDeServico = 6;
inline constexpr Long TempoDeExecucao = 7;
} // namespace colunas_de_servicos

} // namespace kova::agenda
