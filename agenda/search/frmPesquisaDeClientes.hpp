#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/widgets.hpp"

#include <memory>

namespace kova::agenda {

/// The modal picker of customers, over one box that takes a nickname, trade name, name, company name or code.
///
/// Whoever opens it calls ConfigurarGrade and PreencherGrade, shows it modally, reads RegistroSelecionado and
/// then the columns of msfgGrade at RowSel, and unloads it.
class frmPesquisaDeClientes {
public:
    /// A new dialog, not yet loaded.
    static std::shared_ptr<frmPesquisaDeClientes> Criar();

    /// Loads the dialog where it is not, and empties and hides the grid: one row, all columns. Answers 0,
    /// also after a reported failure.
    Integer ConfigurarGrade();
    /// Fills in the customers found, from the first record on. The grid stays hidden: showing the dialog
    /// shows it. Answers 0, also after a reported failure.
    Integer PreencherGrade(RecordSet& registros);
    /// Brings the wait plate to the front, in the middle.
    void CentralizarpicMensagem();
    /// True shows the wait plate and waits one second; nothing happens while the dialog is not visible.
    void ExibirOcultarpicMensagem(bool Exibir);

    FormRef Formulario;
    KVTheme& kvTheme = Bind<KVTheme>(Formulario, "kvTheme");
    Label& lblApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo =
        Bind<Label>(Formulario, "lblApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo");
    KVFind& kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo =
        Bind<KVFind>(Formulario, "kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo");
    MSFlexGrid& msfgGrade = Bind<MSFlexGrid>(Formulario, "msfgGrade");
    KVCommandButton& kvcmdFechar = Bind<KVCommandButton>(Formulario, "kvcmdFechar");
    PictureBox& picMensagem = Bind<PictureBox>(Formulario, "picMensagem");

    /// A row was accepted. False again when the dialog is shown or unloaded.
    bool RegistroSelecionado = false;
    /// Swallows the next Click of the search box.
    bool IgnorarPesquisa = false;

private:
    frmPesquisaDeClientes();
    void LigarEventos();

    bool PesquisarCliente();
    bool ValidarCampos();

    void Form_Load();
    void Form_Activate();
    void Form_Resize();
    void Form_Unload();
    void kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo_Click();
    void msfgGrade_Click();
    void kvcmdFechar_Click();
};

/// Columns of the dialog's grid.
namespace colunas_de_clientes {
inline constexpr Long Codigo = 1;
inline constexpr Long ApelidoOuNomeFantasia = 2;
inline constexpr Long NomeOuRazaoSocial = 3;
inline constexpr Long Situacao = 4;
inline constexpr Long Endereco = 5;
inline constexpr Long CanalDeComunicacao = 6;
inline constexpr Long ClienteVIP = 7;
inline constexpr Long CategoriaDaCurvaABC = 8;
} // namespace colunas_de_clientes

} // namespace kova::agenda
