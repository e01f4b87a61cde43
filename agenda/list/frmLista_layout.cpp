// Where everything on the list stands, and how many rows a page has.

#include "agenda/contracts/text.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

#include <cmath>

namespace kova::agenda {

namespace {

constexpr Twips LarguraDeTelaPequena = 1024;

Twips BordaDireita(const Widget& widget) { return widget.Left() + widget.Width(); }

void CentralizarSob(const Widget& acima, Widget& abaixo)
{
    abaixo.Left(acima.Left() + acima.Width() / 2 - abaixo.Width() / 2);
}

} // namespace

void frmLista::Form_Resize()
{
    Integer Ponto = 0;
    Trap(", frmLista, Form_Resize, Ponto: ", Ponto, [&] {
        Ponto = 1;
        PosicionarFiltros();

        Ponto = 6;
        PosicionarGradeEPainel();

        Ponto = 7;
        AjustarColunasALarguraDaTela();

        Ponto = 8;
        // The divisor is 80 more than a row's height, on purpose: the grid reaches 1000 twips below the form,
        // where no row shows. The panel's room is the two rows of LinhasDoPainel.
        RegistrosPorPagina = Checked(
            RoundToLong(std::floor((static_cast<Double>(msfgGrade.Height()) - 700) / 650)) - LinhasDoPainel);
    });
}

void frmLista::PosicionarFiltros()
{
    lblTitulo.Top(350);
    lblTitulo.Left(Formulario->ScaleLeft() + 300);
    kvcmdAdicionar.Top(lblTitulo.Top() + 850);
    kvcmdAdicionar.Left(lblTitulo.Left());
    kvfndPesquisar.Top(kvcmdAdicionar.Top());
    kvfndPesquisar.Left(BordaDireita(kvcmdAdicionar) + 100);
    kvcmbSituacao.Top(kvfndPesquisar.Top());
    kvcmbSituacao.Left(BordaDireita(kvfndPesquisar) + 100);
    kvcmdIrParaDiaAnterior.Top(kvcmbSituacao.Top());
    kvcmdIrParaDiaAnterior.Left(BordaDireita(kvcmbSituacao) + 100);
    kvdtpDataDeAgendamento.Top(kvcmdIrParaDiaAnterior.Top());
    kvdtpDataDeAgendamento.Left(BordaDireita(kvcmdIrParaDiaAnterior));
    kvcmdIrParaDiaPosterior.Top(kvdtpDataDeAgendamento.Top());
    kvcmdIrParaDiaPosterior.Left(BordaDireita(kvdtpDataDeAgendamento));
    kvcmdImprimirLista.Top(kvcmdIrParaDiaPosterior.Top());
    kvcmdImprimirLista.Left(BordaDireita(kvcmdIrParaDiaPosterior) + 100);
    lblExibirPainel.Top(kvcmdAdicionar.Top() + 590);
    CentralizarSob(kvcmdAdicionar, lblExibirPainel);
    chkExibirPainel.Top(lblExibirPainel.Top() + 280);
    CentralizarSob(lblExibirPainel, chkExibirPainel);
    kvcmbTiposDeServicos.Top(kvcmdAdicionar.Top() + 600);
    kvcmbTiposDeServicos.Left(kvfndPesquisar.Left());
    kvcmbFuncionarios.Top(kvcmbSituacao.Top() + 600);
    kvcmbFuncionarios.Left(kvcmbSituacao.Left());
    kvnbBarraDeNavegacao.Top(kvcmdAdicionar.Top() - 135);
    kvnbBarraDeNavegacao.Left(Formulario->ScaleWidth() - kvnbBarraDeNavegacao.Width() - 120);
    lblMensagemDeResultado.Top(kvcmbTiposDeServicos.Top() + 600);
    lblMensagemDeResultado.Left(kvcmbTiposDeServicos.Left());
    picMensagem.Left(kvfndPesquisar.Left());
}

void frmLista::PosicionarGradeEPainel()
{
    msfgGrade.Redraw(false);
    msfgGrade.Top(kvcmbTiposDeServicos.Top() + 670);
    msfgGrade.Left(kvcmdAdicionar.Left());
    msfgGrade.Width(Formulario->ScaleWidth() - 600);
    msfgGrade.Height(Formulario->ScaleHeight() - 1470);
    msfgGrade.Redraw(true);
    picPainel.Left(msfgGrade.Left());
    picPainel.Width(msfgGrade.Width());
    shpShape1.Width(picPainel.Width());
    shpShape2.Width(shpShape1.Width());
}

void frmLista::AjustarColunasALarguraDaTela()
{
    const Toolkit& tela = ThePlatform().Toolkit();
    const Double largura = static_cast<Double>(Formulario->Width());
    if (tela.ScreenWidth() / tela.TwipsPerPixelX() <= LarguraDeTelaPequena) {
        kvnbBarraDeNavegacao.Top(lblTitulo.Top());
        msfgGrade.ColWidth(colunas::NomeOuRazaoSocialDoCliente, RoundToLong(largura - 6885));
        msfgGrade.ColWidth(colunas::NomeDoAnimal, 0);
        msfgGrade.ColWidth(colunas::NomeDoTipoDeServico, 0);
    } else {
        // The service's name shows on wide screens only.
        msfgGrade.ColWidth(colunas::NomeDoServico, RoundToLong(largura - 15650));
    }
}

} // namespace kova::agenda
