// What is printed of one row: the two cards and the address label.

#include "agenda/contracts/text.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/printing/appointment_card.hpp"
#include "agenda/printing/printed_report.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modFundoEscuro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

constexpr Twips LarguraDaFicha = 10125;

} // namespace

void frmLista::kvcmdImprimirFicha_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdImprimirFicha_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        msfgGrade.Enabled(false);

        Ponto = 2;
        mnuImprimirFichaDoAgendamentoParaTransporte.Caption("Ficha do agendamento para transporte");
        mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal.Caption(
            "Ficha do agendamento para inspeção do animal");
        mnuImprimirEtiquetaDeEndereco.Caption("Etiqueta de endereço");

        Ponto = 3;
        Formulario->PopupMenu(mnuImprimirFicha, kvcmdImprimirFicha.Left(),
                              kvcmdImprimirFicha.Top() + kvcmdImprimirFicha.Height());

        Ponto = 4;
        msfgGrade.Enabled(true);
    });
}

void frmLista::mnuImprimirFichaDoAgendamentoParaTransporte_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, mnuImprimirFichaDoAgendamentoParaTransporte_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        msfgGrade.Enabled(false);
        Ponto = 2;
        ImprimirFichaDoAgendamentoParaTransporte();
        Ponto = 3;
        msfgGrade.Enabled(true);
    });
}

void frmLista::mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        msfgGrade.Enabled(false);
        Ponto = 2;
        ImprimirFichaDoAgendamentoParaInspecaoDoAnimal();
        Ponto = 3;
        msfgGrade.Enabled(true);
    });
}

Integer frmLista::ImprimirFichaDoAgendamentoParaTransporte()
{
    Integer Ponto = 0;
    return Trap(", frmLista, ImprimirFichaDoAgendamentoParaTransporte, Ponto: ", Ponto,
                [&] { return ImprimirFicha(FichaParaTransporte(), Ponto); });
}

Integer frmLista::ImprimirFichaDoAgendamentoParaInspecaoDoAnimal()
{
    Integer Ponto = 0;
    return Trap(", frmLista, ImprimirFichaDoAgendamentoParaInspecaoDoAnimal, Ponto: ", Ponto,
                [&] { return ImprimirFicha(FichaParaInspecaoDoAnimal(), Ponto); });
}

Integer frmLista::ImprimirFicha(const FichaImpressa& ficha, Integer& Ponto)
{
    Ponto = 1;
    ComponentRef mensagem = CreateObject("KOVA_A_MsgAcesso.clsMensagem");

    Ponto = 2;
    Integer opcao = 0;
    AplicarFundoEscuro(Principal.HandleDaJanelaPrincipal, opcao);
    Formulario->Refresh();

    Ponto = 3;
    mensagem->Call("Exibir", {Text("Aguarde, reorganizando dados.")});

    // A refusal leaves the shell dimmed; the message closes with its object.
    Ponto = 4;
    const RecordSetRef empresa = SelecionarEmpresa([] {});
    if (!empresa)
        return 1;

    Ponto = 5;
    const RecordSetRef registro = MontarRegistroDaFicha(ficha, msfgGrade);

    Ponto = 6;
    mensagem->Call("Fechar");
    RemoverFundoEscuro(Principal.HandleDaJanelaPrincipal);
    mensagem.reset();

    Ponto = 7;
    const ReportRef relatorio = InstanciaDoRelatorio(ficha.instancia, ficha.desenho);
    relatorio->DataSource(registro);
    relatorio->DataMember("");

    Ponto = 8;
    relatorio->Section(secoes::Cabecalho)
        .Label("lblNomeFantasiaDaEmpresa")
        .Caption(empresa->Field("NomeFantasia").ToText());

    Ponto = 9;
    VincularFicha(ficha, *relatorio, *registro);

    Ponto = 10;
    EscreverNomeDoAplicativo(*relatorio);

    Ponto = 11;
    relatorio->Caption(ficha.titulo);
    DarMargens(*relatorio);
    relatorio->Width(LarguraDaFicha);
    relatorio->WindowState(ReportWindowState::Maximized);
    VisualizarRelatorio(*relatorio);
    return 0;
}

void frmLista::mnuImprimirEtiquetaDeEndereco_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, mnuImprimirEtiquetaDeEndereco_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        const Long linha = msfgGrade.Row();
        const auto celula = [&](Long coluna) { return msfgGrade.TextMatrix(linha, coluna); };
        if (Val(celula(colunas::CodigoDoCliente)) == 0) {
            ExibirInformacao("Não é possível imprimir etiquetas para agendamento simplificado.");
            return;
        }

        Ponto = 2;
        const ComponentRef objEtiquetas = CreateObject("KOVA_A_EmissorDeEtiquetas.clsEtiquetas");

        Ponto = 3;
        objEtiquetas->Set("CodigoDoCliente", celula(colunas::CodigoDoCliente));
        objEtiquetas->Set("ApelidoOuNomeFantasiaDoCliente", celula(colunas::ApelidoOuNomeFantasiaDoCliente));
        objEtiquetas->Set("NomeOuRazaoSocialDoCliente", celula(colunas::NomeOuRazaoSocialDoCliente));
        objEtiquetas->Set("NomeDaAplicacao", Principal.NomeDaAplicacao);
        objEtiquetas->Set("DadosDoUsuario", Principal.DadosDoUsuario);

        Ponto = 4;
        Integer opcao = 0;
        AplicarFundoEscuro(Principal.HandleDaJanelaPrincipal, opcao);

        // It returns when the label's screen has closed.
        Ponto = 5;
        objEtiquetas->Call("AbrirEmissaoDeEtiqueta", {Integer{1}});

        Ponto = 6;
        RemoverFundoEscuro(Principal.HandleDaJanelaPrincipal);
    });
}

} // namespace kova::agenda
