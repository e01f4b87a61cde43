// The service: its type, its lookup by code or name, and the times that follow from its duration.

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

CaixasDoServico frmFichaCompleta::Servico()
{
    return {kvfCodigoDoServico, kvfNomeDoServico, kvtxtTempoDoServico};
}

void frmFichaCompleta::kvcmbTiposDeServicos_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvcmbTiposDeServicos_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (EventoIgnorado(Estado))
            return;
        for (KVFind* caixa : {&kvfNomeDoServico, &kvfCodigoDoServico}) {
            caixa->Status(find_status::Clear);
            caixa->Text("");
            caixa->Status(find_status::Found);
        }

        // The start date stays.
        Ponto = 2;
        kvtimHoraInicial.Text(Text(EmptyTimeMask));
        kvtxtTempoDoServico.Text("");
        kvdtpDataFinal.Text(Text(EmptyDateMask));
        kvtimHoraFinal.Text(Text(EmptyTimeMask));
        kvtxtObservacaoDoServico.Text("");

        Ponto = 3;
        HabilitarDesabilitarCampos(true);
    });
}

void frmFichaCompleta::kvfCodigoDoServico_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfCodigoDoServico_Click, Ponto: ", Ponto,
         [&] { CaixaDoServico_Click(kvfCodigoDoServico, kvfNomeDoServico, Ponto); });
}

void frmFichaCompleta::kvfNomeDoServico_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfNomeDoServico_Click, Ponto: ", Ponto,
         [&] { CaixaDoServico_Click(kvfNomeDoServico, kvfCodigoDoServico, Ponto); });
}

void frmFichaCompleta::kvfCodigoDoServico_KeyDown()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfCodigoDoServico_KeyDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (!EventoIgnorado(Estado))
            kvfNomeDoServico.DisplayText("");
    });
}

void frmFichaCompleta::kvfNomeDoServico_KeyDown()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfNomeDoServico_KeyDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (!EventoIgnorado(Estado))
            kvfCodigoDoServico.DisplayText("");
    });
}

void frmFichaCompleta::CaixaDoServico_Click(KVFind& origem, KVFind& outra, Integer& Ponto)
{
    Ponto = 1;
    switch (origem.Status()) {
    case find_status::Search: return PesquisarPelaCaixaDoServico(origem, outra, Ponto);
    case find_status::Clear: Ponto = 6; return EsvaziarCaixasDePesquisa(origem, outra);
    default: return;
    }
}

void frmFichaCompleta::PesquisarPelaCaixaDoServico(KVFind& origem, KVFind& outra, Integer& Ponto)
{
    if (PesquisaRecusadaPorTextoCurto(origem))
        return;

    Ponto = 2;
    const Integer linhaDoTipo = kvcmbTiposDeServicos.ListIndex();
    if (linhaDoTipo == -1) {
        ExibirInformacao("Selecione o tipo de serviço.");
        kvcmbTiposDeServicos.SetFocus();
        return;
    }

    Ponto = 3;
    outra.Text("");
    const Integer tipo = Value(kvcmbTiposDeServicos.ItemData(linhaDoTipo)).ToInteger();
    Ponto = 4;
    if (PesquisarServico(tipo, Trim(kvfNomeDoServico.Text()), Val(kvfCodigoDoServico.Text()))) {
        kvtimHoraInicial.SetFocus();
        return;
    }
    Ponto = 5;
    EsvaziarCaixasDePesquisa(origem, outra);
}

bool frmFichaCompleta::PesquisarServico(Integer NumeroDoTipoDeServico, const Text& Nome, Double Codigo)
{
    Integer Ponto = 0;
    return Trap(", frmFichaCompleta, PesquisarServico, Ponto: ", Ponto, [&] {
        Ponto = 1;
        ExibirOcultarpicMensagem(true);
        ComponentRef objServicos = CreateObject("KOVA_N_Servicos.clsServicos");

        Ponto = 2;
        Integer tipo = NumeroDoTipoDeServico;
        Text nome = Nome;
        Double codigo = Codigo;
        if (objServicos
                ->Call("Selecionar",
                       {Long{2}, Integer{0}, Long{1}, "", ByRef(tipo), ByRef(nome), ByRef(codigo)})
                .ToInteger()
            != 0) {
            Ponto = 3;
            ExibirOcultarpicMensagem(false);
            MensagemDeErroDoObjeto(*objServicos);
            return false;
        }

        Ponto = 4;
        ExibirOcultarpicMensagem(false);
        const auto registros = objServicos->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objServicos.reset();

        Ponto = 5;
        const Long encontrados = registros->RecordCount();
        if (encontrados == 0) {
            ExibirInformacao(MensagemDeServicoNaoEncontrado(Nome, Codigo, kvcmbTiposDeServicos.Text()));
            ThePlatform().Toolkit().SendKeys("+({HOME})");
            return false;
        }

        Ponto = 6;
        return encontrados == 1 ? AceitarServicoEncontrado(*registros) : EscolherServico(*registros);
    });
}

bool frmFichaCompleta::AceitarServicoEncontrado(const RecordSet& registros)
{
    Estado.IgnorarEventoDeCampo = true;
    MostrarServicoEncontrado(Servico(), registros);
    SelecionarTipoEncontrado(kvcmbTiposDeServicos, Estado, registros);
    Estado.IgnorarEventoDeCampo = true;
    return true;
}

bool frmFichaCompleta::EscolherServico(RecordSet& registros)
{
    const auto pesquisa = AbrirPesquisaDeServicos(registros);
    CopiarTiposPara(*pesquisa);
    Formulario->Refresh();
    pesquisa->Formulario->Show(ShowMode::Modal);

    const bool escolhido = pesquisa->RegistroSelecionado;
    if (escolhido) {
        Estado.IgnorarEventoDeCampo = true;
        MostrarServicoEscolhido(Servico(), *pesquisa);
        SelecionarTipoEscolhido(kvcmbTiposDeServicos, Estado, *pesquisa);
        Estado.IgnorarEventoDeCampo = true;
    }
    pesquisa->Formulario->Unload();
    return escolhido;
}

void frmFichaCompleta::CopiarTiposPara(frmPesquisaDeServicos& pesquisa)
{
    // The combo itself moves along its rows; the guard keeps its click from emptying the service.
    pesquisa.kvcmbTiposDeServicos.Clear();
    const Integer linhaSelecionada = kvcmbTiposDeServicos.ListIndex();
    const Integer linhas = kvcmbTiposDeServicos.ListCount();
    for (Integer linha = 0; linha < linhas; ++linha) {
        Estado.IgnorarEventoDeCampo = true;
        kvcmbTiposDeServicos.ListIndex(linha);
        pesquisa.kvcmbTiposDeServicos.AddItem(kvcmbTiposDeServicos.Text());
        pesquisa.kvcmbTiposDeServicos.ItemData(pesquisa.kvcmbTiposDeServicos.NewIndex(),
                                               kvcmbTiposDeServicos.ItemData(linha));
    }
    SelecionarTipoNaPesquisa(pesquisa, linhaSelecionada);
    Estado.IgnorarEventoDeCampo = true;
    kvcmbTiposDeServicos.ListIndex(linhaSelecionada);
}

void frmFichaCompleta::kvtimHoraInicial_LostFocus()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvtimHoraInicial_LostFocus, Ponto: ", Ponto, [&] {
        Ponto = 1;
        PreencherTerminoDoServico(
            {kvdtpDataInicial, kvtimHoraInicial, kvdtpDataFinal, kvtimHoraFinal, kvtxtTempoDoServico});
    });
}

} // namespace kova::agenda
