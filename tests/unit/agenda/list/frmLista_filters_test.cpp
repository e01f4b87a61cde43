// Filters, days and the wait plate.

#include "tests/unit/agenda/module_fixture.hpp"

namespace kova::agenda {

namespace {

const std::string Selecionar = "call KOVA_N_Agenda.clsAgenda.Selecionar";

class Filtering : public ModuleTest {
protected:
    Filtering() { ScriptAppointments(42); }

    std::shared_ptr<frmLista> OpenOnPage(int page)
    {
        auto lista = Open();
        for (int at = 1; at < page; ++at)
            user.Bar("frmLista", "kvnbBarraDeNavegacao", 3);
        lines.clear();
        return lista;
    }
};

TEST_F(Filtering, ByStatusIsADetourThatComesBackToItsPage)
{
    const auto lista = OpenOnPage(2);
    EXPECT_EQ(user.Choose("frmLista", "kvcmbSituacao", 1), "");
    EXPECT_TRUE(lista->ListaFiltrada);
    EXPECT_EQ(lista->PaginaSalva, 2);
    EXPECT_EQ(lista->PaginaAtual, 2) << "the page is left as it stands";
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.FirstRecord(), 1) << "the bar shows the first page's numbers";
    EXPECT_EQ(user.Choose("frmLista", "kvcmbSituacao", 2), "");
    EXPECT_EQ(lista->PaginaSalva, 2) << "saved on the way in alone";
    lista->PaginaAtual = 1;
    EXPECT_EQ(user.Choose("frmLista", "kvcmbSituacao", 0), "");
    EXPECT_FALSE(lista->ListaFiltrada);
    EXPECT_EQ(lista->PaginaAtual, 2);
    EXPECT_EQ(lista->msfgGrade.TextMatrix(1, 1), "20");
    EXPECT_EQ(Lines(Selecionar).size(), 3U);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(Filtering, ByTextIsADetourToo)
{
    const auto lista = OpenOnPage(3);
    user.Type("frmLista", "kvfndPesquisar", "rex");
    EXPECT_EQ(user.Press("frmLista", "kvfndPesquisar"), "");
    EXPECT_TRUE(lista->ListaFiltrada);
    EXPECT_EQ(lista->PaginaSalva, 3);
    ASSERT_EQ(Lines(Selecionar).size(), 1U);
    EXPECT_NE(Lines(Selecionar)[0].find("Text \"rex\""), std::string::npos);
    EXPECT_EQ(user.Press("frmLista", "kvfndPesquisar"), "");
    EXPECT_FALSE(lista->ListaFiltrada);
    EXPECT_EQ(lista->PaginaAtual, 3);
    EXPECT_EQ(lista->kvfndPesquisar.Text(), "");
}

TEST_F(Filtering, ByTypeOrEmployeeRefreshesTheModulesDate)
{
    const auto lista = OpenOnPage(1);
    lista->kvdtpDataDeAgendamento.Text("25/12/2026");
    user.Choose("frmLista", "kvcmbSituacao", 0);
    EXPECT_EQ(Principal.DataDaAgenda, "20/11/2026") << "the status leaves it alone";
    user.Choose("frmLista", "kvcmbTiposDeServicos", 1);
    EXPECT_EQ(Principal.DataDaAgenda, "25/12/2026");
    lista->kvdtpDataDeAgendamento.Text("26/12/2026");
    user.Choose("frmLista", "kvcmbFuncionarios", 1);
    EXPECT_EQ(Principal.DataDaAgenda, "26/12/2026");
    EXPECT_FALSE(lista->ListaFiltrada) << "neither counts as a filter of its own";
    EXPECT_EQ(lista->PaginaSalva, 1);
}

TEST_F(Filtering, SwallowsOneClickWhereTheGuardIsSet)
{
    const auto lista = OpenOnPage(1);
    for (auto* combo : {&lista->kvcmbSituacao, &lista->kvcmbTiposDeServicos, &lista->kvcmbFuncionarios}) {
        lista->IgnorarClick = true;
        combo->ListIndex(1);
        EXPECT_FALSE(lista->IgnorarClick) << combo->Name();
    }
    EXPECT_TRUE(lines.empty());
    lista->IgnorarClick = true;
    user.Press("frmLista", "kvfndPesquisar");
    EXPECT_TRUE(lines.empty());
    EXPECT_FALSE(lista->IgnorarClick);
}

TEST_F(Filtering, ShowsTheWaitPlateForOneSecondWithTheFormDisabled)
{
    const auto lista = OpenOnPage(1);
    bool plateInPause = false;
    bool formInPause = true;
    bool gridInPause = true;
    toolkit.Queue().QueueDuringPause([&] {
        plateInPause = lista->picMensagem.Visible();
        formInPause = lista->Formulario->Enabled();
        gridInPause = lista->msfgGrade.Visible();
    });
    const Double before = toolkit.Clock().Timer();
    user.Choose("frmLista", "kvcmbTiposDeServicos", 1);
    EXPECT_EQ(toolkit.Clock().Timer() - before, 1);
    EXPECT_TRUE(plateInPause);
    EXPECT_FALSE(formInPause);
    EXPECT_FALSE(gridInPause);
    EXPECT_FALSE(lista->picMensagem.Visible());
    EXPECT_TRUE(lista->Formulario->Enabled());
    EXPECT_TRUE(lista->msfgGrade.Visible());
    EXPECT_EQ(lista->picMensagem.Top(), lista->msfgGrade.Top() + 700);
}

TEST_F(Filtering, EndsAPauseThatBeginsJustBeforeMidnight)
{
    const auto lista = OpenOnPage(1);
    toolkit.Clock().Set({{2026, 11, 20}, {23, 59, 59}});
    user.Choose("frmLista", "kvcmbTiposDeServicos", 1);
    EXPECT_EQ(toolkit.Clock().Now(), (DateTime{{2026, 11, 21}, {0, 0, 0}}));
    EXPECT_FALSE(lista->picMensagem.Visible());
}

TEST_F(Filtering, RoundsThePlateOnEverySystemButOne)
{
    const auto lista = OpenOnPage(1);
    const auto roundings = [&] {
        const auto corners = toolkit.CornersOf(lista->picMensagem.Handle());
        return corners ? corners->calls : 0;
    };
    user.Choose("frmLista", "kvcmbTiposDeServicos", 1);
    EXPECT_EQ(roundings(), 1);
    EXPECT_EQ(toolkit.CornersOf(lista->picMensagem.Handle())->ellipseWidth, 30);
    EXPECT_EQ(toolkit.CornersOf(lista->picMensagem.Handle())->ellipseHeight, 30);
    for (const char* system : {"windows 8", "WINDOWS 8", "Windows 8"}) {
        script.System(system);
        user.Choose("frmLista", "kvcmbTiposDeServicos", 0);
        EXPECT_EQ(roundings(), 1) << system;
    }
    script.System("Windows 8.1");
    user.Choose("frmLista", "kvcmbTiposDeServicos", 1);
    EXPECT_EQ(roundings(), 2);
}

TEST_F(Filtering, LeavesSquareCornersWhereTheVersionIsUnknown)
{
    const auto lista = OpenOnPage(1);
    script.FailCreate("KOVA_N_SO.clsObterVersaoDoSO", Failure(429, "sem versão"));
    user.Choose("frmLista", "kvcmbTiposDeServicos", 1);
    EXPECT_FALSE(toolkit.CornersOf(lista->picMensagem.Handle()));
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find(", modArredondarCantosDoObjeto, ArredondarCantosDoObjeto, Ponto: 1"),
              std::string::npos);
    EXPECT_EQ(Lines(Selecionar).size(), 1U) << "the reload went on";
}

TEST_F(Filtering, MovesByOneDayAndReloadsOnce)
{
    const auto lista = OpenOnPage(1);
    EXPECT_EQ(user.Click("frmLista", "kvcmdIrParaDiaPosterior"), "");
    EXPECT_EQ(lista->kvdtpDataDeAgendamento.Text(), "21/11/2026");
    EXPECT_EQ(Principal.DataDaAgenda, "21/11/2026");
    EXPECT_EQ(Lines(Selecionar).size(), 1U);
    lista->kvdtpDataDeAgendamento.Text("01/03/2028");
    user.Click("frmLista", "kvcmdIrParaDiaAnterior");
    EXPECT_EQ(lista->kvdtpDataDeAgendamento.Text(), "29/02/2028");
}

TEST_F(Filtering, ReportsADateThatCannotBeRead)
{
    const auto lista = OpenOnPage(1);
    lista->kvdtpDataDeAgendamento.Text("31/02/2026");
    user.Click("frmLista", "kvcmdIrParaDiaAnterior");
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 13"), std::string::npos);
    EXPECT_NE(Reports()[0].find(", frmLista, kvcmdIrParaDiaAnterior_Click, Ponto: 1"), std::string::npos);
    EXPECT_TRUE(Lines(Selecionar).empty());
}

TEST_F(Filtering, ReloadsWithTheUsersEditAndThenOnlyMovesTheFocus)
{
    const auto lista = OpenOnPage(1);
    user.Type("frmLista", "kvdtpDataDeAgendamento", "24/12/2026");
    EXPECT_EQ(Lines(Selecionar).size(), 1U);
    EXPECT_EQ(Principal.DataDaAgenda, "24/12/2026");
    EXPECT_FALSE(lista->DataAlterada) << "the reload gave the focus to the grid";
    EXPECT_EQ(lista->kvdtpDataDeAgendamento.Text(), "24/12/2026");
}

TEST_F(Filtering, SendsAHalfTypedDateBackToToday)
{
    const auto lista = OpenOnPage(1);
    user.Type("frmLista", "kvdtpDataDeAgendamento", "24/1");
    EXPECT_TRUE(Lines(Selecionar).empty());
    user.Focus("frmLista", "kvfndPesquisar");
    EXPECT_EQ(lista->kvdtpDataDeAgendamento.Text(), "20/11/2026");
    EXPECT_EQ(Lines(Selecionar).size(), 1U);
}

TEST_F(Filtering, ReloadsNothingWhereTheDateIsLeftAsItWas)
{
    const auto lista = OpenOnPage(1);
    user.Focus("frmLista", "kvdtpDataDeAgendamento");
    user.Focus("frmLista", "kvfndPesquisar");
    EXPECT_TRUE(Lines(Selecionar).empty());
    EXPECT_FALSE(lista->DataAlterada);
}

TEST_F(Filtering, GoesOnWithTheFormerSelectionWhereTheNewOneFails)
{
    const auto lista = OpenOnPage(1);
    script.Answer(
        "KOVA_N_Agenda.clsAgenda.Selecionar",
        {.result = Long{1}, .records = Table({Appointment(9)}), .members = {{"NumeroDoErro", Long{2}}}});
    user.Choose("frmLista", "kvcmbTiposDeServicos", 1);
    EXPECT_EQ(Reports().size(), 1U);
    EXPECT_FALSE(lista->picMensagem.Visible());
    EXPECT_TRUE(lista->Formulario->Enabled());
}

} // namespace

} // namespace kova::agenda
