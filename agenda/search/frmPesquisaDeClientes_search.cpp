// The search inside the dialog of customers, and the choice of a row.

#include "agenda/contracts/text.hpp"
#include "agenda/search/customer_state.hpp"
#include "agenda/search/frmPesquisaDeClientes.hpp"
#include "agenda/search/search_dialog.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

#include <utility>

namespace kova::agenda {

bool frmPesquisaDeClientes::PesquisarCliente()
{
    Integer Ponto = 0;
    return Trap(", frmPesquisaDeClientes, PesquisarCliente, Ponto: ", Ponto, [&] {
        Ponto = 1;
        ExibirOcultarpicMensagem(true);
        ComponentRef objClientes = CreateObject("KOVA_N_ClientAnim.clsClientes");
        objClientes->Set("DadosDoUsuario", Principal.DadosDoUsuario);
        IgnorarPesquisa = true;

        // The plate goes as soon as the answer is there.
        Ponto = 2;
        const Text texto = kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo.Text();
        const Integer falha =
            objClientes
                ->Call("Selecionar",
                       {Long{2}, Integer{0}, Long{0}, texto, "", Double{0}, "", "", "", Double{0}, ""})
                .ToInteger();
        ExibirOcultarpicMensagem(false);
        if (falha != 0) {
            MensagemDeErroDoObjeto(*objClientes);
            return false;
        }

        Ponto = 3;
        const auto registros = objClientes->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objClientes.reset();
        if (registros->RecordCount() == 0) {
            ExibirInformacao("Nenhum cliente encontrado  como o valor '" + texto + "' informado.");
            ThePlatform().Toolkit().SendKeys("+({HOME})");
            return false;
        }

        // The search has hidden the grid; filling it does not show it here.
        Ponto = 4;
        PreencherGrade(*registros);
        msfgGrade.Visible(true);
        if (registros->RecordCount() == 1)
            msfgGrade_Click();
        return true;
    });
}

void frmPesquisaDeClientes::kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo_Click()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeClientes, kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo_Click, Ponto: ",
         Ponto, [&] {
             KVFind& caixa = kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo;
             Ponto = 1;
             ConfigurarGrade();
             if (std::exchange(IgnorarPesquisa, false))
                 return;

             Ponto = 2;
             if (PesquisarCliente()) {
                 if (HaLinhasParaEscolher(msfgGrade))
                     caixa.SetFocus();
                 return;
             }

             // Putting the box back raises its Click, which is not to search again.
             Ponto = 3;
             IgnorarPesquisa = true;
             caixa.ReiniciarPesquisa();
         });
}

bool frmPesquisaDeClientes::ValidarCampos()
{
    Integer Ponto = 0;
    return Trap(", frmPesquisaDeClientes, ValidarCampos, Ponto: ", Ponto, [&] {
        Ponto = 1;
        const Text situacao = msfgGrade.TextMatrix(msfgGrade.RowSel(), colunas_de_clientes::Situacao);
        const Text motivo = MotivoDaRecusaDoCliente(RoundToLong(Val(situacao)));
        if (motivo.empty())
            return true;

        Ponto = 2;
        ExibirInformacao(motivo);
        msfgGrade.SetFocus();
        return false;
    });
}

void frmPesquisaDeClientes::msfgGrade_Click()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeClientes, msfgGrade_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (msfgGrade.Row() == 0)
            return;

        Ponto = 2;
        if (!ValidarCampos())
            return;

        Ponto = 3;
        RegistroSelecionado = true;
        Formulario->Hide();
    });
}

} // namespace kova::agenda
