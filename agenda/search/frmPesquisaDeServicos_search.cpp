// The search inside the dialog of services, and the choice of a row.

#include "agenda/search/frmPesquisaDeServicos.hpp"
#include "agenda/search/search_dialog.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

#include <utility>

namespace kova::agenda {

bool frmPesquisaDeServicos::PesquisarServico()
{
    Integer Ponto = 0;
    return Trap(", frmPesquisaDeServicos, PesquisarServico, Ponto: ", Ponto, [&] {
        Ponto = 1;
        ExibirOcultarpicMensagem(true);
        ComponentRef objServicos = CreateObject("KOVA_N_Servicos.clsServicos");
        IgnorarPesquisa = true;

        Ponto = 2;
        const Text texto = kvfndCodigoOuNome.Text();
        const Long tipo = kvcmbTiposDeServicos.ItemData(kvcmbTiposDeServicos.ListIndex());
        if (objServicos->Call("Selecionar", {Long{2}, Integer{0}, Long{1}, texto, tipo}).ToInteger() != 0) {
            ExibirOcultarpicMensagem(false);
            MensagemDeErroDoObjeto(*objServicos);
            return false;
        }

        Ponto = 3;
        const auto registros = objServicos->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objServicos.reset();
        if (registros->RecordCount() == 0) {
            ExibirOcultarpicMensagem(false);
            ExibirInformacao("Nenhum serviço encontrado  como o valor '" + texto
                             + "' informado e com o tipo de serviço '" + kvcmbTiposDeServicos.Text() + "'.");
            ThePlatform().Toolkit().SendKeys("+({HOME})");
            return false;
        }

        // The plate goes when the rows are there, and after the choice of a single one.
        Ponto = 4;
        PreencherGrade(*registros);
        if (registros->RecordCount() == 1)
            msfgGrade_Click();
        ExibirOcultarpicMensagem(false);
        return true;
    });
}

void frmPesquisaDeServicos::kvfndCodigoOuNome_Click()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose: the list's.
    Trap(", frmLista, kvfndCodigoOuNome_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        ConfigurarGrade();
        if (std::exchange(IgnorarPesquisa, false))
            return;
        // Resizing the dialog drops the flag: the end of the former search is still no search of its own.
        if (kvfndCodigoOuNome.Status() == find_status::Clear && !kvfndCodigoOuNome.Text().empty())
            return;

        Ponto = 2;
        if (kvcmbTiposDeServicos.ListIndex() == -1) {
            ExibirInformacao("Selecione o tipo de serviço.");
            kvcmbTiposDeServicos.SetFocus();
            return;
        }

        Ponto = 3;
        if (PesquisarServico()) {
            if (HaLinhasParaEscolher(msfgGrade))
                kvfndCodigoOuNome.SetFocus();
            return;
        }

        // Putting the box back raises its Click, which is not to search again.
        Ponto = 4;
        IgnorarPesquisa = true;
        kvfndCodigoOuNome.ReiniciarPesquisa();
    });
}

bool frmPesquisaDeServicos::ValidarCampos()
{
    // Every service may be chosen.
    return true;
}

void frmPesquisaDeServicos::msfgGrade_Click()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeServicos, msfgGrade_Click, Ponto: ", Ponto, [&] {
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
