// The service: its type, the lookup by code or name, and when it ends.

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/records/service_choice.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"
#include "agenda/simplified_record/frmFichaSimplificada.hpp"

#include <initializer_list>

namespace kova::agenda {

void frmFichaSimplificada::kvcmbTiposDeServicos_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, kvcmbTiposDeServicos_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (EventoIgnorado(Estado))
            return;

        Ponto = 2;
        for (KVFind* caixa : {&kvfNomeDoServico, &kvfCodigoDoServico}) {
            caixa->Status(find_status::Clear);
            caixa->Text("");
            caixa->Status(find_status::Found);
        }

        Ponto = 3;
        kvtimHoraInicial.Text(Text(EmptyTimeMask));
        kvtxtTempoDoServico.Text("");
        kvdtpDataFinal.Text(Text(EmptyDateMask));
        kvtimHoraFinal.Text(Text(EmptyTimeMask));
        kvtxtObservacaoDoServico.Text("");
        // Only this record form goes back to the day of the list.
        kvdtpDataInicial.Text(Principal.DataDaAgenda);

        Ponto = 4;
        HabilitarDesabilitarCampos(true);
    });
}

void frmFichaSimplificada::HabilitarDesabilitarCampos(bool habilitar)
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, HabilitarDesabilitarCampos, Ponto: ", Ponto, [&] {
        Ponto = 1;
        for (Widget* campo :
             std::initializer_list<Widget*>{&kvfCodigoDoServico, &kvfNomeDoServico, &kvdtpDataInicial,
                                            &kvtimHoraInicial, &kvdtpDataFinal, &kvtimHoraFinal,
                                            &kvcmbFuncionarios, &kvtxtObservacaoDoServico, &kvcmbSituacao})
            campo->Enabled(habilitar);
    });
}

void frmFichaSimplificada::kvfCodigoDoServico_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, kvfCodigoDoServico_Click, Ponto: ", Ponto,
         [&] { CaixaDoServico_Click(kvfCodigoDoServico, kvfNomeDoServico, Ponto); });
}

void frmFichaSimplificada::kvfNomeDoServico_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, kvfNomeDoServico_Click, Ponto: ", Ponto,
         [&] { CaixaDoServico_Click(kvfNomeDoServico, kvfCodigoDoServico, Ponto); });
}

void frmFichaSimplificada::CaixaDoServico_Click(KVFind& origem, KVFind& outra, Integer& Ponto)
{
    Ponto = 1;
    const Long status = origem.Status();
    if (status == find_status::Clear)
        return EsvaziarCaixasDePesquisa(origem, outra);
    if (status != find_status::Search)
        return;

    Ponto = 2;
    if (PesquisaRecusadaPorTextoCurto(origem))
        return;

    Ponto = 3;
    const Integer tipo = kvcmbTiposDeServicos.ListIndex();
    if (tipo == -1) {
        ExibirInformacao("Selecione o tipo de serviço.");
        kvcmbTiposDeServicos.SetFocus();
        return;
    }

    Ponto = 4;
    outra.Text("");
    const Text codigo = Trim(kvfCodigoDoServico.Text());
    const bool encontrado = PesquisarServico(Checked(kvcmbTiposDeServicos.ItemData(tipo)),
                                             Trim(kvfNomeDoServico.Text()), codigo.empty() ? 0 : Val(codigo));

    Ponto = 5;
    if (encontrado)
        kvtimHoraInicial.SetFocus();
    else
        EsvaziarCaixasDePesquisa(origem, outra);
}

void frmFichaSimplificada::kvfCodigoDoServico_KeyDown()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, kvfCodigoDoServico_KeyDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (!EventoIgnorado(Estado))
            kvfNomeDoServico.DisplayText("");
    });
}

void frmFichaSimplificada::kvfNomeDoServico_KeyDown()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, kvfNomeDoServico_KeyDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (!EventoIgnorado(Estado))
            kvfCodigoDoServico.DisplayText("");
    });
}

bool frmFichaSimplificada::PesquisarServico(Integer tipo, Text nome, Double codigo)
{
    Integer Ponto = 0;
    return Trap(", frmFichaSimplificada, PesquisarServico, Ponto: ", Ponto, [&] {
        Ponto = 1;
        ExibirOcultarpicMensagem(true);
        ComponentRef objServicos = CreateObject("KOVA_N_Servicos.clsServicos");

        Ponto = 2;
        const Integer falha =
            objServicos
                ->Call("Selecionar",
                       {Long{2}, Integer{0}, Long{1}, "", ByRef(tipo), ByRef(nome), ByRef(codigo)})
                .ToInteger();
        ExibirOcultarpicMensagem(false);
        if (falha != 0) {
            MensagemDeErroDoObjeto(*objServicos);
            return false;
        }

        Ponto = 3;
        const auto registros = objServicos->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objServicos.reset();
        if (registros->RecordCount() == 0) {
            ExibirInformacao(MensagemDeServicoNaoEncontrado(nome, codigo, kvcmbTiposDeServicos.Text()));
            ThePlatform().Toolkit().SendKeys("+({HOME})");
            return false;
        }

        Ponto = 4;
        if (registros->RecordCount() == 1) {
            MostrarServicoEncontrado({kvfCodigoDoServico, kvfNomeDoServico, kvtxtTempoDoServico}, *registros);
            SelecionarTipoEncontrado(kvcmbTiposDeServicos, Estado, *registros);
            // Filling the box that searched counts as typing into it, which would empty the other one.
            Estado.IgnorarEventoDeCampo = true;
            return true;
        }

        Ponto = 5;
        return EscolherServico(*registros);
    });
}

bool frmFichaSimplificada::EscolherServico(RecordSet& registros)
{
    const auto pesquisa = AbrirPesquisaDeServicos(registros);
    pesquisa->kvcmbTiposDeServicos.Clear();
    for (Integer linha = 0; linha < kvcmbTiposDeServicos.ListCount(); ++linha) {
        pesquisa->kvcmbTiposDeServicos.AddItem(kvcmbTiposDeServicos.List(linha));
        pesquisa->kvcmbTiposDeServicos.ItemData(pesquisa->kvcmbTiposDeServicos.NewIndex(),
                                                kvcmbTiposDeServicos.ItemData(linha));
    }
    SelecionarTipoNaPesquisa(*pesquisa, kvcmbTiposDeServicos.ListIndex());
    pesquisa->Formulario->Show(ShowMode::Modal);

    const bool escolhido = pesquisa->RegistroSelecionado;
    if (escolhido) {
        MostrarServicoEscolhido({kvfCodigoDoServico, kvfNomeDoServico, kvtxtTempoDoServico}, *pesquisa);
        SelecionarTipoEscolhido(kvcmbTiposDeServicos, Estado, *pesquisa);
        Estado.IgnorarEventoDeCampo = true;
    }
    pesquisa->Formulario->Unload();
    return escolhido;
}

void frmFichaSimplificada::kvtimHoraInicial_LostFocus()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, kvtimHoraInicial_LostFocus, Ponto: ", Ponto, [&] {
        Ponto = 1;
        PreencherTerminoDoServico(
            {kvdtpDataInicial, kvtimHoraInicial, kvdtpDataFinal, kvtimHoraFinal, kvtxtTempoDoServico});
    });
}

} // namespace kova::agenda
