// Loading the day's selection and moving between its pages.

#include "agenda/contracts/text.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

RecordSetRef frmLista::ResultadoDaSelecao()
{
    if (!objAgendaDaLista)
        throw Failure(FailureNumber::NoObject);
    return objAgendaDaLista->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
}

Integer frmLista::GerarLista()
{
    Integer Ponto = 0;
    return Trap(", frmLista, GerarLista, Ponto: ", Ponto, [&]() -> Integer {
        Ponto = 1;
        const Long situacao = kvcmbSituacao.ItemData(kvcmbSituacao.ListIndex());
        const Text textoPesquisado = kvfndPesquisar.Text();
        const Text data = kvdtpDataDeAgendamento.Text();
        const Long tipoDeServico = kvcmbTiposDeServicos.ItemData(kvcmbTiposDeServicos.ListIndex());
        const Long funcionario = kvcmbFuncionarios.ItemData(kvcmbFuncionarios.ListIndex());
        if (!objAgendaDaLista)
            throw Failure(FailureNumber::NoObject);
        const Value status =
            objAgendaDaLista->Call("Selecionar",
                                   {Long{1}, ByRef(RegistrosPorPagina), situacao, textoPesquisado, data,
                                    tipoDeServico, funcionario, Double{0}});
        if (status.ToInteger() == 0) {
            Ponto = 2;
            ListaFiltrada = situacao != 0 || kvfndPesquisar.Status() == find_status::Search;
            Ponto = 3;
            return 0;
        }
        Ponto = 4;
        MensagemDeErroDoObjeto(*objAgendaDaLista);
        Ponto = 5;
        return 1;
    });
}

void frmLista::AtualizarObjetos(Integer Modo)
{
    Integer Ponto = 0;
    Trap(", frmLista, AtualizarObjetos, Ponto: ", Ponto, [&] {
        Ponto = 1;
        PreencherGrade();

        Ponto = 2;
        const RecordSetRef selecao = ResultadoDaSelecao();

        Ponto = 3;
        if (picMensagem.Visible())
            ExibirOcultarpicMensagem(false);

        const Long total = selecao->RecordCount();
        if (total > 0) {
            Ponto = 4;
            ExibirLista();
        } else {
            Ponto = 5;
            ExibirListaVazia();
        }

        PreencherBarraDeNavegacao(Modo, total, Ponto);
        kvnbBarraDeNavegacao.RecordCount(total);
        kvnbBarraDeNavegacao.PageSize(RegistrosPorPagina);
        kvnbBarraDeNavegacao.Refresh();

        Ponto = 12;
        if (msfgGrade.Visible()) {
            msfgGrade.SetFocus();
            msfgGrade.Col(0);
            msfgGrade.Row(msfgGrade.RowSel());
            // Below a full page, also where the page on show is short.
            const Long linhaDaGrade = msfgGrade.RowHeight(1);
            picPainel.Top(msfgGrade.Top()
                          + static_cast<Twips>(msfgGrade.RowHeight(0) - linhaDaGrade
                                               + linhaDaGrade * (RegistrosPorPagina + LinhasDoPainel - 1)));
        }
    });
}

void frmLista::ExibirLista()
{
    kvcmdAdicionar.Visible(true);
    kvfndPesquisar.Visible(true);
    kvcmbTiposDeServicos.Visible(true);
    kvcmbFuncionarios.Visible(true);
    kvcmbSituacao.Visible(true);
    kvcmdIrParaDiaAnterior.Visible(true);
    kvdtpDataDeAgendamento.Visible(true);
    kvcmdIrParaDiaPosterior.Visible(true);
    kvcmdImprimirLista.Visible(true);
    kvnbBarraDeNavegacao.Visible(true);
    msfgGrade.Visible(true);
    lblExibirPainel.Visible(true);
    chkExibirPainel.Visible(true);
    picPainel.Visible(chkExibirPainel.Value() != 0);
    lblMensagemDeResultado.Visible(false);
}

void frmLista::ExibirListaVazia()
{
    kvcmdAdicionar.Visible(true);
    kvfndPesquisar.Visible(true);
    kvcmbTiposDeServicos.Visible(true);
    kvcmbFuncionarios.Visible(true);
    kvcmbSituacao.Visible(true);
    kvcmdIrParaDiaAnterior.Visible(true);
    kvdtpDataDeAgendamento.Visible(true);
    kvcmdIrParaDiaPosterior.Visible(true);
    kvcmdImprimirLista.Visible(true);
    kvnbBarraDeNavegacao.Visible(false);
    msfgGrade.Visible(false);
    lblExibirPainel.Visible(false);
    chkExibirPainel.Visible(false);
    picPainel.Visible(false);
    lblMensagemDeResultado.Caption("Nenhum agendamento encontrado.");
    lblMensagemDeResultado.Visible(true);
}

void frmLista::PreencherBarraDeNavegacao(Integer Modo, Long total, Integer& Ponto)
{
    auto& barra = kvnbBarraDeNavegacao;
    const auto linhas = [this] { return Double{msfgGrade.Rows() - 1.0}; };
    switch (Modo) {
    case 1:
        Ponto = 7;
        barra.FirstRecord(1);
        barra.LastRecord(linhas());
        break;
    case 2: {
        Ponto = 8;
        const Double primeiro = barra.FirstRecord();
        barra.FirstRecord(primeiro - linhas());
        barra.LastRecord(primeiro - 1);
        break;
    }
    case 3: {
        Ponto = 9;
        const Double ultimo = barra.LastRecord();
        barra.FirstRecord(ultimo + 1);
        barra.LastRecord(ultimo + linhas());
        break;
    }
    case 4:
        Ponto = 10;
        barra.FirstRecord(total - linhas() + 1);
        barra.LastRecord(total);
        break;
    default: {
        Ponto = 11;
        // 16-bit arithmetic: a page far enough down overflows and is reported.
        const Integer produto = Checked(Long{RegistrosPorPagina} * PaginaAtual);
        const Integer primeiroDaPagina = Checked(produto - Checked(RegistrosPorPagina - 1));
        barra.FirstRecord(primeiroDaPagina);
        barra.LastRecord(primeiroDaPagina + msfgGrade.Rows() - 2);
        break;
    }
    }
}

} // namespace kova::agenda
