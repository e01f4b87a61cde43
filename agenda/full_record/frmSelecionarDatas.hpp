#pragma once

#include "agenda/contracts/widgets.hpp"

#include <array>
#include <cstddef>
#include <memory>

namespace kova::agenda {

/// The date selection of a repeated booking: up to twelve dates and times by hand. It checks them against
/// the calendar and hands them back as a table; it stores nothing.
///
/// Its opener fills the four header fields and the first row, runs MontarExibirFormulario and reads the three
/// results. frmSelecionarDatas.cpp opens and closes it and makes the table,
/// frmSelecionarDatas_validation.cpp checks the rows.
class frmSelecionarDatas {
public:
    /// Rows on the form; the user sees them numbered from 1.
    static constexpr std::size_t Linhas = 12;

    /// A new date selection, hidden.
    static std::shared_ptr<frmSelecionarDatas> Criar();
    /// Unloads the form.
    ~frmSelecionarDatas();
    frmSelecionarDatas(const frmSelecionarDatas&) = delete;
    frmSelecionarDatas& operator=(const frmSelecionarDatas&) = delete;

    /// Shows the form modally; returns when the user has finished.
    void MontarExibirFormulario();

    /// Whether the user confirmed.
    bool OperacaoConcluida = false;
    /// Whether Sundays and holidays are to move to the next working day. One answer for the whole table: that
    /// of the last such row.
    bool DomingoOuFeriado = false;
    /// Bounds 0 to 3 and 0 to n, n being the number of rows filled: start date, start time, end date and end
    /// time of each of them, as texts. Element n stays empty. Null until the user confirmed.
    ArrayRef ListaDasDatasEHorasSelecionadas;

    void CentralizarpicMensagem();
    /// The wait plate: true shows it and waits one second, false hides it. Only while the form is visible.
    void ExibirOcultarpicMensagem(bool Exibir);

    FormRef Formulario;
    KVTextBox& kvtxtApelidoDoCliente = Bind<KVTextBox>(Formulario, "kvtxtApelidoDoCliente");
    KVTextBox& kvtxtNomeDoAnimal = Bind<KVTextBox>(Formulario, "kvtxtNomeDoAnimal");
    KVTextBox& kvtxtNomeDoServico = Bind<KVTextBox>(Formulario, "kvtxtNomeDoServico");
    KVTextBox& kvtxtTempoDoServico = Bind<KVTextBox>(Formulario, "kvtxtTempoDoServico");
    std::array<KVDTPicker*, Linhas> kvdtpDataInicial = Grupo<KVDTPicker>("kvdtpDataInicial");
    std::array<KVTime*, Linhas> kvtimHoraInicial = Grupo<KVTime>("kvtimHoraInicial");
    KVCommandButton& kvcmdSalvarFecharConfirmar =
        Bind<KVCommandButton>(Formulario, "kvcmdSalvarFecharConfirmar");
    KVCommandButton& kvcmdCancelar = Bind<KVCommandButton>(Formulario, "kvcmdCancelar");
    PictureBox& picMensagem = Bind<PictureBox>(Formulario, "picMensagem");

private:
    frmSelecionarDatas();
    void Form_Load();
    void kvcmdSalvarFecharConfirmar_Click();
    void kvcmdCancelar_Click();

    /// 1 when the form must stay open, else 0: also after a reported failure.
    Integer ValidarCampos();
    /// The rows with a date, checked in order; a row that must be mended ends the walk.
    bool LinhasValidas(bool& existeData, Integer& Ponto);
    bool LinhaValida(std::size_t linha, Integer& Ponto);
    /// Asks about a date on which the shop is closed; `pergunta` says which. False where the user neither
    /// keeps the date nor has it moved.
    bool ConfirmarOuReagendar(const Text& pergunta);
    /// Whether a day and month, "dd/mm", is a holiday. A lookup that fails counts as none.
    bool PesquisarFeridado(const Text& Data);
    bool DataVazia(std::size_t linha) const;

    /// Makes the table. 1 after a reported failure, which keeps the form open, else 0.
    Integer PreencherListaDasDatasEHorasSelecionadas_Click();
    bool LinhaPreenchida(std::size_t linha) const;
    void PreencherElemento(Array& lista, Long elemento, std::size_t linha) const;

    template <class Kind> std::array<Kind*, Linhas> Grupo(const char* nome) const
    {
        std::array<Kind*, Linhas> grupo{};
        for (std::size_t linha = 0; linha < Linhas; ++linha)
            grupo[linha] = &Bind<Kind>(Formulario, nome, static_cast<int>(linha));
        return grupo;
    }
};

} // namespace kova::agenda
