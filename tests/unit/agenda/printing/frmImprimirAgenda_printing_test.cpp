// The list on paper: what is selected, what is bound, what is refused.

#include "agenda/printing/frmImprimirAgenda.hpp"
#include "tests/unit/agenda/printing/printing_fixture.hpp"
#include "tests/unit/agenda/widget_log.hpp"

namespace kova::agenda {

namespace {

constexpr const char* Dialogo = "frmImprimirAgenda";
constexpr const char* Lista = "mnuImprimirListaDeAgendamentos";
constexpr const char* ListaParaTransporte = "mnuImprimirListaDeAgendamentosParaTransporte";

class PrintedList : public PrintingTest {
protected:
    PrintedList()
    {
        script.Always(
            Selecionar,
            {.records = Table({Appointment(1, {{"HoraInicial", "15:00"}, {"NomeDoAnimal", "Tarde"}}),
                               Appointment(2, {{"HoraInicial", "08:00"}, {"NomeDoAnimal", "Cedo"}})})});
        lista = Open();
    }

    /// Opens the dialog, does `choose` in it and presses "Visualizar impressão".
    void Print(const char* entry, std::function<void()> choose = {})
    {
        toolkit.Queue().QueueMenu(entry);
        toolkit.Queue().QueueAction([this, choose] {
            if (choose)
                choose();
            lines.clear();
            toolkit.ClearLog();
            EXPECT_EQ(user.Click(Dialogo, "kvcmdVisualizarImpressao"), "");
        });
        user.Click("frmLista", "kvcmdImprimirLista");
        EXPECT_EQ(Principal.ImprimirAgendaImplicita, nullptr) << "the dialog is closed in any case";
    }

    std::string Selection() const
    {
        const Strings calls = Lines(std::string("call ") + Selecionar);
        return calls.empty() ? "" : calls.front();
    }

    std::shared_ptr<frmLista> lista;
};

TEST_F(PrintedList, GetsItsWindowAndPaperInThisOrder)
{
    WidgetLog widgets;
    for (const auto& [entry, report] :
         {std::pair{Lista, "drListaDeAgendamentos"},
          std::pair{ListaParaTransporte, "drListaDeAgendamentosParaTransporte"}}) {
        const std::string name = report;
        Look();
        toolkit.Observer(&widgets);
        Print(entry);
        toolkit.Observer(nullptr);
        const Strings written = widgets.Of(name + ".");
        const auto window =
            std::find(written.begin(), written.end(), name + ".Caption Text \"Imprimir agendamentos\"");
        EXPECT_EQ(Strings(window + 1, written.end()),
                  (Strings{name + ".WindowState Integer 2", name + ".Width Double 10145",
                           name + ".LeftMargin Double 850", name + ".TopMargin Double 850",
                           name + ".RightMargin Double 850", name + ".BottomMargin Double 850",
                           name + ".Orientation Integer 2", name + ".Refresh Empty", name + ".Show Long 1"}));
    }
}

TEST_F(PrintedList, ComesFromASelectionOfItsOwn)
{
    Look();
    Print(Lista);
    const Strings company = Lines(std::string("call ") + Empresa);
    EXPECT_EQ(company,
              Strings{R"(call KOVA_N_Empresa.clsEmpresa.SelecionarNova(Long 2, Integer 0, Long 1, Text "") )"
                      "-> Integer 0"});
    EXPECT_EQ(Selection(),
              R"(call KOVA_N_Agenda.clsAgenda.Selecionar(Long 2, Integer 0, Long 0, Text "", )"
              R"(Text& "20/11/2026", Long 0, Long 0, Long 0) -> Integer 0)");
    EXPECT_EQ(Reports(), Strings());
}

TEST_F(PrintedList, ShowsTheDayInStartOrderOnALandscapePage)
{
    Look();
    Print(Lista);
    EXPECT_TRUE(landscape);
    EXPECT_EQ(Logged("report "),
              Strings{R"(report drListaDeAgendamentos modal caption "Imprimir agendamentos" width 10145 )"
                      "margins 850 850 850 850 landscape records 2 pages 1"});
    for (const char* text : {"Pata Feliz", "Agendamentos", "Lista completa", "Kova", "Ana", "Zé"})
        EXPECT_TRUE(Printed(text)) << text;
    const auto early = std::find(printed.begin(), printed.end(), "Cedo");
    const auto late = std::find(printed.begin(), printed.end(), "Tarde");
    ASSERT_NE(late, printed.end());
    EXPECT_LT(early, late);
}

TEST_F(PrintedList, ForTransportShowsCodesAndAddressAndNoEmployee)
{
    Look();
    Print(ListaParaTransporte);
    EXPECT_TRUE(landscape);
    for (const char* text : {"Agendamentos (lista para transportes)", "12", "(EnderecoCompletoComCEP)",
                             "(NomeDaRaca)", "Pata Feliz", "Kova"})
        EXPECT_TRUE(Printed(text)) << text;
    EXPECT_FALSE(Printed("Ana"));
}

TEST_F(PrintedList, NamesAllFourFiltersWhereOneIsSet)
{
    Look();
    Print(Lista, [this] { user.Choose(Dialogo, "kvcmbSituacao", "Atendido"); });
    EXPECT_TRUE(Printed("Lista filtrada por situação: atendido, tipo de serviço: (tipos de serviços), "
                        "funcionário(a): (funcionários) e transporte: todas as situações"));
    Look();
    Print(Lista, [this] { user.Choose(Dialogo, "kvcmbTransporte", "Levar"); });
    EXPECT_NE(Selection().find("Long 0, Long 0, Long 3)"), std::string::npos) << Selection();
    EXPECT_TRUE(Printed("Lista filtrada por situação: todas as situações, tipo de serviço: (tipos de "
                        "serviços), funcionário(a): (funcionários) e transporte: levar"));
}

TEST_F(PrintedList, CanBePrintedAgainAndAgain)
{
    for (int time = 0; time < 2; ++time) {
        Look();
        Print(Lista);
        EXPECT_TRUE(Printed("Pata Feliz"));
        EXPECT_TRUE(Printed("Cedo"));
    }
}

TEST_F(PrintedList, WaitsWithAMessageAndWithoutTheDialog)
{
    whilePreviewed = [this] {
        EXPECT_EQ(toolkit.FindForm("frmMensagem"), nullptr) << "gone before the preview";
        EXPECT_FALSE(toolkit.FindForm(Dialogo)->Visible());
    };
    toolkit.Queue().QueueDuringPause([this] {
        EXPECT_TRUE(toolkit.FindForm("frmMensagem")->Visible());
        EXPECT_FALSE(toolkit.FindForm(Dialogo)->Visible());
    });
    Look();
    Print(Lista);
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela").size(), 1U) << "removed behind the preview";
}

TEST_F(PrintedList, NeedsACompany)
{
    ScriptCompanies({});
    Acknowledge();
    Print(Lista);
    ASSERT_EQ(toolkit.Queue().Questions().size(), 1U);
    EXPECT_EQ(toolkit.Queue().Questions()[0].kind, MessageKind::Information);
    EXPECT_EQ(toolkit.Queue().Questions()[0].text, SemEmpresa);
    EXPECT_EQ(toolkit.Queue().Questions()[0].title, "Kova");
    EXPECT_EQ(Selection().find("Long 2"), std::string::npos) << "nothing is selected but the list's reload";
}

TEST_F(PrintedList, IsHeadedByTheFirstOfSeveralCompanies)
{
    ScriptCompanies({{"Primeira"}, {"Segunda"}});
    Look();
    Print(Lista);
    EXPECT_TRUE(Printed("Primeira"));
    EXPECT_FALSE(Printed("Segunda"));
}

TEST_F(PrintedList, SaysWhereNothingMatches)
{
    Acknowledge();
    Print(Lista, [this] { script.Answer(Selecionar, {.records = Table({})}); });
    ASSERT_EQ(toolkit.Queue().Questions().size(), 1U);
    EXPECT_EQ(toolkit.Queue().Questions()[0].text,
              "Nenhum agendamento encontrado com as específicações informadas.");
}

TEST_F(PrintedList, OfAnUnknownKindIsNone)
{
    Print(Lista, [] { Principal.ImprimirAgendaImplicita->TipoDaListaASerImpressa(2); });
    EXPECT_EQ(Logged("report "), Strings());
    EXPECT_TRUE(Boxes().empty());
    EXPECT_EQ(Reports(), Strings());
}

TEST_F(PrintedList, HandsABusinessFailureToTheErrorScreen)
{
    script.Answer(Empresa, Failed());
    Print(Lista);
    EXPECT_EQ(Reports(), Strings{ReportOfFailed()});

    Print(Lista, [this] { script.Answer(Selecionar, Failed()); });
    EXPECT_EQ(Reports(), Strings{ReportOfFailed()});
    EXPECT_EQ(Logged("report "), Strings());
}

TEST_F(PrintedList, LeavesNothingBehindAfterATrappedFailure)
{
    script.Fail(Empresa, Failure(5, "falhou"));
    Print(Lista);
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find(", frmImprimirAgenda, ImprimirLista, Ponto: 3"), std::string::npos)
        << Reports()[0];
    EXPECT_EQ(toolkit.FindForm("frmMensagem"), nullptr);
}

} // namespace

} // namespace kova::agenda
