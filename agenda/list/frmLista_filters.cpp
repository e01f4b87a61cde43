// The filters above the grid, the days, and the paging bar.

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

#include <utility>

namespace kova::agenda {

namespace {

/// Characters of a whole date, "dd/mm/yyyy".
constexpr std::size_t TamanhoDaData = 10;

} // namespace

void frmLista::RecarregarDepoisDaEspera()
{
    GerarLista();
    if (ListaFiltrada) {
        AtualizarObjetos(1);
    } else {
        if (PaginaSalva == 0)
            PaginaSalva = 1;
        PaginaAtual = PaginaSalva;
        AtualizarObjetos(0);
    }
}

void frmLista::GuardarPaginaAoFiltrar(bool entraNoFiltro)
{
    if (entraNoFiltro && !ListaFiltrada)
        PaginaSalva = Checked(ResultadoDaSelecao()->AbsolutePage());
}

void frmLista::kvcmbFuncionarios_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmbFuncionarios_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (std::exchange(IgnorarClick, false))
            return;
        Principal.DataDaAgenda = kvdtpDataDeAgendamento.Text();

        Ponto = 2;
        ExibirOcultarpicMensagem(true);

        Ponto = 3;
        GerarLista();

        Ponto = 4;
        if (ListaFiltrada) {
            AtualizarObjetos(1);
        } else {
            // Only this filter also mends a page below 1.
            if (PaginaSalva < 1)
                PaginaSalva = 1;
            PaginaAtual = PaginaSalva;
            AtualizarObjetos(0);
        }
    });
}

void frmLista::kvcmbTiposDeServicos_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmbTiposDeServicos_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (std::exchange(IgnorarClick, false))
            return;
        Principal.DataDaAgenda = kvdtpDataDeAgendamento.Text();

        Ponto = 2;
        ExibirOcultarpicMensagem(true);

        Ponto = 3;
        RecarregarDepoisDaEspera();
    });
}

void frmLista::kvcmbSituacao_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmbSituacao_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (std::exchange(IgnorarClick, false))
            return;
        ExibirOcultarpicMensagem(true);

        Ponto = 2;
        GuardarPaginaAoFiltrar(kvcmbSituacao.ItemData(kvcmbSituacao.ListIndex()) != 0);

        Ponto = 3;
        RecarregarDepoisDaEspera();
    });
}

void frmLista::kvfndPesquisar_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvfndPesquisar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (std::exchange(IgnorarClick, false))
            return;
        ExibirOcultarpicMensagem(true);

        Ponto = 2;
        GuardarPaginaAoFiltrar(kvfndPesquisar.Status() == find_status::Search);

        Ponto = 3;
        RecarregarDepoisDaEspera();
    });
}

void frmLista::kvcmdIrParaDiaAnterior_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdIrParaDiaAnterior_Click, Ponto: ", Ponto, [&] { IrParaOutroDia(-1, Ponto); });
}

void frmLista::kvcmdIrParaDiaPosterior_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdIrParaDiaPosterior_Click, Ponto: ", Ponto, [&] { IrParaOutroDia(1, Ponto); });
}

void frmLista::IrParaOutroDia(Long dias, Integer& Ponto)
{
    Ponto = 1;
    const Date dia = RequireDate(kvdtpDataDeAgendamento.Text());

    Ponto = 2;
    kvdtpDataDeAgendamento.Text(FormatDate(AddDays(dia, dias)));

    Ponto = 3;
    Principal.DataDaAgenda = kvdtpDataDeAgendamento.Text();

    Ponto = 4;
    ExibirOcultarpicMensagem(true);

    Ponto = 5;
    RecarregarDepoisDaEspera();
}

void frmLista::kvdtpDataDeAgendamento_Change()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvdtpDataDeAgendamento_Change, Ponto: ", Ponto, [&] {
        Ponto = 1;
        DataAlterada = true;
        Principal.DataDaAgenda = kvdtpDataDeAgendamento.Text();

        Ponto = 2;
        ExibirOcultarpicMensagem(true);

        Ponto = 3;
        RecarregarDepoisDaEspera();
    });
}

void frmLista::kvdtpDataDeAgendamento_GotFocus()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose: that of the other focus handler.
    Trap(", frmLista, kvdtpDataDeAgendamento_LostFocus, Ponto: ", Ponto, [&] {
        Ponto = 1;
        DataAoEntrar = kvdtpDataDeAgendamento.Text();
    });
}

void frmLista::kvdtpDataDeAgendamento_LostFocus()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvdtpDataDeAgendamento_LostFocus, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (kvdtpDataDeAgendamento.Text() == DataAoEntrar) {
            DataAlterada = false;
        } else if (!DataAlterada) {
            Ponto = 2;
            // A half-typed date goes back to today.
            if (Length(Trim(Replace(kvdtpDataDeAgendamento.Text(), "_", ""))) != TamanhoDaData)
                kvdtpDataDeAgendamento.Text(FormatDate(ThePlatform().Clock().Now().date));
            Principal.DataDaAgenda = kvdtpDataDeAgendamento.Text();
            ExibirOcultarpicMensagem(true);
            RecarregarDepoisDaEspera();
        } else {
            Ponto = 3;
            // The edit has reloaded the list already.
            if (msfgGrade.Visible())
                msfgGrade.SetFocus();
            else
                kvfndPesquisar.SetFocus();
            DataAlterada = false;
        }
    });
}

void frmLista::kvnbBarraDeNavegacao_Click(Integer& Botao)
{
    Integer Ponto = 0;
    Trap(", frmLista, kvnbBarraDeNavegacao_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        switch (Botao) {
        case 1:
            Ponto = 2;
            PaginaAtual = 1;
            Ponto = 3;
            AtualizarObjetos(1);
            break;
        case 2:
            Ponto = 4;
            PaginaAtual = Checked(ResultadoDaSelecao()->AbsolutePage() - 1);
            Ponto = 5;
            AtualizarObjetos(2);
            break;
        case 3:
            Ponto = 6;
            PaginaAtual = Checked(ResultadoDaSelecao()->AbsolutePage() + 1);
            Ponto = 7;
            AtualizarObjetos(3);
            break;
        case 4:
            Ponto = 8;
            PaginaAtual = Checked(ResultadoDaSelecao()->PageCount());
            Ponto = 9;
            AtualizarObjetos(4);
            break;
        default: break;
        }
    });
}

} // namespace kova::agenda
