// The panel below the grid: all about the appointment of the current row.

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modLerGravarEmArquivoIni.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/trap.hpp"

#include <initializer_list>

namespace kova::agenda {

namespace {

constexpr Twips DepoisDoTitulo = 50;
constexpr Twips DepoisDoValor = 200;

/// The time of a moment, "hh:mm"; a text that is no moment stays as it is.
Text HoraDoMomento(const Text& momento)
{
    const auto lido = ParseDateTime(momento);
    return lido ? FormatTime(lido->time) : momento;
}

/// Puts each label right after the one before it. Titles and values take turns; the first stays.
void AlinharEmSequencia(std::initializer_list<Label*> rotulos)
{
    Label* anterior = nullptr;
    bool anteriorEhTitulo = false;
    for (Label* rotulo : rotulos) {
        if (anterior)
            rotulo->Left(anterior->Left() + anterior->Width()
                         + (anteriorEhTitulo ? DepoisDoTitulo : DepoisDoValor));
        anterior = rotulo;
        anteriorEhTitulo = !anteriorEhTitulo;
    }
}

} // namespace

void frmLista::AtualizarPainel()
{
    Integer Ponto = 0;
    Trap(", frmLista, AtualizarPainel, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (!Principal.FormularioDaLista)
            throw Failure(FailureNumber::NoObject);

        Ponto = 2;
        PreencherRotulosDoPainel(Principal.FormularioDaLista->Grade());

        Ponto = 3;
        AlinharRotulosDoPainel();
    });
}

void frmLista::PreencherRotulosDoPainel(const MSFlexGrid& grade)
{
    // While a drag is under way the two rows differ. The kind of customer, the nickname or trade name and the
    // user of the last change come from RowSel, all else from Row.
    const auto naSelecao = [&](Long coluna) { return grade.TextMatrix(grade.RowSel(), coluna); };
    const auto naLinha = [&](Long coluna) { return grade.TextMatrix(grade.Row(), coluna); };

    // A company has a trade name and a company name, a person a nickname and a name.
    const bool ehEmpresa = naSelecao(colunas::TipoDeCliente) == "PJ";
    lblTitulo_ApelidoOuNomeFantasiaDoCliente.Caption(ehEmpresa ? "Nome fantasia:" : "Apelido:");
    lblTitulo_NomeOuRazaoSocialDoCliente.Caption(ehEmpresa ? "Razão Social:" : "Nome:");

    // The cells as they stand.
    lblApelidoOuNomeFantasiaDoCliente.Caption(naSelecao(colunas::ApelidoOuNomeFantasiaDoCliente));
    lblNomeOuRazaoSocialDoCliente.Caption(naLinha(colunas::NomeOuRazaoSocialDoCliente));
    lblComunicacaoDoCliente.Caption(naLinha(colunas::TiposECanaisDeComunicacao));
    lblNomeDoAnimal.Caption(naLinha(colunas::NomeDoAnimal));
    lblSexoDoAnimal.Caption(naLinha(colunas::SexoDoAnimal));
    lblPorteDoAnimal.Caption(naLinha(colunas::PorteDoAnimal));
    lblEspecieDoAnimal.Caption(naLinha(colunas::NomeDaEspecie));
    lblRacaDoAnimal.Caption(naLinha(colunas::NomeDaRaca));
    lblObservacaoDoAnimal.Caption(naLinha(colunas::ObservacaoDoAnimal));
    lblInicioDoServico.Caption(naLinha(colunas::HoraInicial));
    lblFimDoServico.Caption(naLinha(colunas::HoraFinal));
    lblNomeDoServico.Caption(naLinha(colunas::NomeDoServico));
    lblNomeDoFuncionario.Caption(naLinha(colunas::ApelidoDoFuncionario));
    lblTransporteBuscar.Caption(naLinha(colunas::TransporteBuscar));
    lblTransporteLevar.Caption(naLinha(colunas::TransporteLevar));
    lblObservacaoDoAgendamento.Caption(naLinha(colunas::Observacao));

    // Who wrote the appointment last.
    Text momento;
    if (Trim(naSelecao(colunas::UsuarioDaAlteracao)).empty()) {
        lblTitulo_IncluidoOuAlteradoPor.Caption("Incluído por:");
        lblIncluidoOuAlteradoPor.Caption(naLinha(colunas::UsuarioDaInclusao));
        momento = naLinha(colunas::DataEHoraDaInclusao);
    } else {
        lblTitulo_IncluidoOuAlteradoPor.Caption("Alterado por:");
        lblIncluidoOuAlteradoPor.Caption(naSelecao(colunas::UsuarioDaAlteracao));
        momento = naLinha(colunas::DataEHoraDaAlteracao);
    }

    // And at what time.
    lblIncluidoOuAlteradoPor.Caption(lblIncluidoOuAlteradoPor.Caption() + " às " + HoraDoMomento(momento));
}

void frmLista::AlinharRotulosDoPainel()
{
    AlinharEmSequencia({&lblTitulo_ApelidoOuNomeFantasiaDoCliente, &lblApelidoOuNomeFantasiaDoCliente,
                        &lblTitulo_NomeOuRazaoSocialDoCliente, &lblNomeOuRazaoSocialDoCliente,
                        &lblTitulo_ComunicacaoDoCliente, &lblComunicacaoDoCliente});
    AlinharEmSequencia({&lblTitulo_NomeDoAnimal, &lblNomeDoAnimal, &lblTitulo_SexoDoAnimal, &lblSexoDoAnimal,
                        &lblTitulo_PorteDoAnimal, &lblPorteDoAnimal, &lblTitulo_EspecieDoAnimal,
                        &lblEspecieDoAnimal, &lblTitulo_RacaDoAnimal, &lblRacaDoAnimal,
                        &lblTitulo_ObservacaoDoAnimal, &lblObservacaoDoAnimal});
    AlinharEmSequencia({&lblTitulo_InicioDoServico, &lblInicioDoServico, &lblTitulo_FimDoServico,
                        &lblFimDoServico, &lblTitulo_NomeDoServico, &lblNomeDoServico, &lblTitulo_Funcionario,
                        &lblNomeDoFuncionario});
    AlinharEmSequencia({&lblTitulo_TransporteBuscar, &lblTransporteBuscar, &lblTitulo_TransporteLevar,
                        &lblTransporteLevar, &lblTitulo_ObservacaoDoAgendamento, &lblObservacaoDoAgendamento,
                        &lblTitulo_IncluidoOuAlteradoPor, &lblIncluidoOuAlteradoPor});
}

void frmLista::chkExibirPainel_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, chkExibirPainel_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (IgnorarClickDoPainel) {
            IgnorarClickDoPainel = false;
            return;
        }
        GravarArquivoIni("ExibirPainel", "CheckBoxExibirPainel", chkExibirPainel.Value() == 1 ? "1" : "0");

        Ponto = 2;
        bool exibir = chkExibirPainel.Value() != 0;
        ExibirOuOcultarPainel(exibir);
    });
}

void frmLista::ExibirOuOcultarPainel(bool& Exibir)
{
    Integer Ponto = 0;
    Trap(", frmLista, ExibirOuOcultarPainel, Ponto: ", Ponto, [&] {
        Ponto = 1;
        picPainel.Visible(Exibir);
        LinhasDoPainel = Exibir ? 2 : 0;

        Ponto = 2;
        Form_Resize();

        Ponto = 3;
        GerarLista();

        Ponto = 4;
        PaginaAtual = 1;
        AtualizarObjetos(1);
        Ponto = 5;
    });
}

} // namespace kova::agenda
