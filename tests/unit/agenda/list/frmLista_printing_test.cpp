// Printing the list: the menu, the dialog's combos, the reload behind it.

#include "agenda/printing/frmImprimirAgenda.hpp"
#include "tests/unit/agenda/printing/printing_fixture.hpp"

namespace kova::agenda {

namespace {

constexpr const char* Dialogo = "frmImprimirAgenda";
constexpr const char* Lista = "mnuImprimirListaDeAgendamentos";
constexpr const char* ListaParaTransporte = "mnuImprimirListaDeAgendamentosParaTransporte";

class ListPrinting : public PrintingTest {
protected:
    /// Opens the dialog from the menu; the user does `action` and then cancels.
    void OpenDialog(const char* entry, std::function<void()> action = {})
    {
        toolkit.Queue().QueueMenu(entry);
        toolkit.Queue().QueueAction([this, action] {
            dialogo = Principal.ImprimirAgendaImplicita.get();
            if (action)
                action();
            EXPECT_EQ(user.Click(Dialogo, "kvcmdCancelar"), "");
        });
        lines.clear();
        toolkit.ClearLog();
        EXPECT_EQ(user.Click("frmLista", "kvcmdImprimirLista"), "");
    }

    static Strings RowsOf(const KVComboBox& combo)
    {
        Strings rows;
        for (Integer row = 0; row < combo.ListCount(); ++row)
            rows.push_back(combo.List(row) + "=" + std::to_string(combo.ItemData(row)));
        return rows;
    }

    /// Valid only inside the action.
    frmImprimirAgenda* dialogo = nullptr;
};

TEST_F(ListPrinting, TheMenuOpensBelowTheButtonWithItsOwnCaptions)
{
    ScriptAppointments(1);
    const auto lista = Open();
    toolkit.Queue().QueueMenu("");
    toolkit.ClearLog();
    user.Click("frmLista", "kvcmdImprimirLista");
    EXPECT_EQ(lista->mnuImprimirListaDeAgendamentos.Caption(), "Lista dos agendamentos");
    EXPECT_EQ(lista->mnuImprimirListaDeAgendamentosParaTransporte.Caption(),
              "Lista dos agendamentos para transporte");
    const auto twips = [](Twips length) { return std::to_string(static_cast<int>(length)); };
    EXPECT_EQ(toolkit.Log().front(),
              "popup mnuImprimirLista " + twips(lista->kvcmdImprimirLista.Left()) + " "
                  + twips(lista->kvcmdImprimirLista.Top() + lista->kvcmdImprimirLista.Height()));
}

TEST_F(ListPrinting, AnEmptyScreenKeepsTheDialogAway)
{
    const auto lista = Open();
    lines.clear();
    for (const char* entry : {Lista, ListaParaTransporte}) {
        toolkit.Queue().QueueMenu(entry);
        Acknowledge();
        toolkit.ClearLog();
        user.Click("frmLista", "kvcmdImprimirLista");
        EXPECT_EQ(Boxes(),
                  Strings{R"(box information "Kova" "Nenhum agendamento encontrado para impressão." -> ok)"});
    }
    EXPECT_EQ(Lines("call"), Strings()) << "neither dimmed nor reloaded";
}

TEST_F(ListPrinting, TheDialogGetsTheFiltersWithWhatIsChosenInThem)
{
    ScriptAppointments(1);
    const auto lista = Open();
    user.Choose("frmLista", "kvcmbSituacao", "Atendido");
    user.Choose("frmLista", "kvcmbFuncionarios", "Beto");
    OpenDialog(Lista, [this] {
        EXPECT_EQ(RowsOf(dialogo->kvcmbSituacao),
                  (Strings{"Todas as situações=0", "Agendado=1", "Atendido=2", "Cancelado=3",
                           "At. gerado pré-venda=4"}));
        EXPECT_EQ(RowsOf(dialogo->kvcmbTiposDeServicos),
                  (Strings{"(Tipos de Serviços)=0", "Consulta=1", "Retorno=2", "Banho e tosa=4"}));
        EXPECT_EQ(RowsOf(dialogo->kvcmbFuncionarios), (Strings{"(Funcionários)=0", "Ana=7", "Beto=9"}));
        EXPECT_EQ(RowsOf(dialogo->kvcmbTransporte),
                  (Strings{"Todas as situações=0", "Buscar e Levar=1", "Buscar=2", "Levar=3"}));
        EXPECT_EQ(dialogo->kvcmbSituacao.Text(), "Atendido");
        EXPECT_EQ(dialogo->kvcmbTiposDeServicos.ListIndex(), 0);
        EXPECT_EQ(dialogo->kvcmbFuncionarios.Text(), "Beto");
        EXPECT_EQ(dialogo->kvcmbTransporte.Text(), "Todas as situações");
        EXPECT_EQ(Lines(std::string("call ") + Selecionar), Strings())
            << "no filter reacts while it is copied";
    });
    EXPECT_EQ(lista->kvcmbSituacao.Text(), "Atendido");
    EXPECT_EQ(lista->kvcmbFuncionarios.Text(), "Beto");
    EXPECT_FALSE(lista->IgnorarClick);
}

TEST_F(ListPrinting, OnlyTheListForTransportChangesTheTitle)
{
    ScriptAppointments(1);
    const auto lista = Open();
    OpenDialog(ListaParaTransporte,
               [this] { EXPECT_EQ(dialogo->kvTheme.Caption(), "Imprimir lista para transporte"); });
    OpenDialog(Lista, [this] { EXPECT_EQ(dialogo->kvTheme.Caption(), "Imprimir agenda"); });
}

TEST_F(ListPrinting, ADialogThatCouldNotBeShownLeavesNoTitleToTheNextOne)
{
    ScriptAppointments(1);
    const auto lista = Open();
    toolkit.Queue().QueueMenu(ListaParaTransporte);
    script.Fail("KOVA_A_EfeitosDeTela.clsFundoEscuro.Aplicar", Failure(5, "falhou"));
    user.Click("frmLista", "kvcmdImprimirLista");
    EXPECT_EQ(Reports().size(), 1U);
    EXPECT_EQ(Principal.ImprimirAgendaImplicita, nullptr);
    EXPECT_EQ(toolkit.FindForm(Dialogo), nullptr);
    OpenDialog(Lista, [this] { EXPECT_EQ(dialogo->kvTheme.Caption(), "Imprimir agenda"); });
}

TEST_F(ListPrinting, TheShellIsDimmedWhileTheDialogIsOpen)
{
    ScriptAppointments(1);
    const auto lista = Open();
    OpenDialog(Lista, [this] {
        EXPECT_EQ(
            Lines("call KOVA_A_EfeitosDeTela"),
            Strings{"call KOVA_A_EfeitosDeTela.clsFundoEscuro.Aplicar(Long& 4711, Integer& 0) -> Integer 0"});
    });
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela").back(),
              "call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover(Long& 4711) -> Integer 0");

    Principal.SemFundoEscuroNaImpressao = true;
    OpenDialog(Lista);
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela"), Strings());
}

TEST_F(ListPrinting, CancellingReloadsTheListOnTheSamePage)
{
    container = toolkit.CreateContainer(28800, 5420);
    ScriptAppointments(7);
    const auto lista = Open();
    user.Bar("frmLista", "kvnbBarraDeNavegacao", 3);
    ASSERT_EQ(lista->PaginaAtual, 2);
    OpenDialog(Lista);
    EXPECT_EQ(Lines(std::string("call ") + Selecionar).size(), 1U);
    EXPECT_EQ(lista->PaginaSalva, 2);
    EXPECT_EQ(lista->PaginaAtual, 2);
    EXPECT_EQ(lista->msfgGrade.TextMatrix(1, 1), "4") << "the first row of the second page";
    EXPECT_EQ(Principal.ImprimirAgendaImplicita, nullptr);
}

TEST_F(ListPrinting, AFailingReloadLeavesThePageAlone)
{
    ScriptAppointments(1);
    const auto lista = Open();
    lista->PaginaAtual = 9;
    OpenDialog(Lista, [this] { script.Answer(Selecionar, Failed()); });
    EXPECT_EQ(Reports(), Strings{ReportOfFailed()});
    EXPECT_EQ(lista->PaginaAtual, 9);
}

TEST_F(ListPrinting, ClosingTheWindowIsLikeCancelling)
{
    ScriptAppointments(1);
    const auto lista = Open();
    toolkit.Queue().QueueMenu(Lista);
    toolkit.Queue().QueueAction([this] { user.CloseForm(Dialogo); });
    user.Click("frmLista", "kvcmdImprimirLista");
    EXPECT_EQ(Principal.ImprimirAgendaImplicita, nullptr);
    EXPECT_EQ(Reports(), Strings());
}

} // namespace

} // namespace kova::agenda
