// Pages, the bar's numbers, and what a reload keeps.

#include "tests/unit/agenda/module_fixture.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"

namespace kova::agenda {

namespace {

const std::string Selecionar = "KOVA_N_Agenda.clsAgenda.Selecionar";

class Paging : public ModuleTest {
protected:
    /// 42 appointments on pages of 19.
    Paging() { ScriptAppointments(42); }

    void Press(Integer button) { EXPECT_EQ(user.Bar("frmLista", "kvnbBarraDeNavegacao", button), ""); }

    static std::string Numbers(const frmLista& lista)
    {
        const auto& bar = lista.kvnbBarraDeNavegacao;
        return std::to_string(static_cast<int>(bar.FirstRecord())) + "-"
            + std::to_string(static_cast<int>(bar.LastRecord())) + "/"
            + std::to_string(static_cast<int>(bar.RecordCount()));
    }
    static std::string FirstNumber(const frmLista& lista) { return lista.msfgGrade.TextMatrix(1, 1); }
};

TEST_F(Paging, GoesForwardAndBackWithoutANewSelection)
{
    const auto lista = Open();
    Press(3);
    EXPECT_EQ(Numbers(*lista), "20-38/42");
    EXPECT_EQ(FirstNumber(*lista), "20");
    EXPECT_EQ(lista->PaginaAtual, 2);
    Press(2);
    EXPECT_EQ(Numbers(*lista), "1-19/42");
    EXPECT_EQ(FirstNumber(*lista), "1");
    EXPECT_EQ(Lines("call " + Selecionar).size(), 1U);
    EXPECT_EQ(Logged("pause").size(), 0U);
}

TEST_F(Paging, ShowsAShortLastPageAndComesBackFromIt)
{
    const auto lista = Open();
    Press(4);
    EXPECT_EQ(Numbers(*lista), "39-42/42");
    EXPECT_EQ(lista->msfgGrade.Rows(), 5) << "rows are never padded";
    EXPECT_EQ(FirstNumber(*lista), "39");
    Press(2);
    EXPECT_EQ(Numbers(*lista), "20-38/42");
    EXPECT_EQ(lista->msfgGrade.Rows(), 20);
    Press(3);
    EXPECT_EQ(Numbers(*lista), "39-42/42");
    Press(1);
    EXPECT_EQ(Numbers(*lista), "1-19/42");
    EXPECT_EQ(FirstNumber(*lista), "1");
}

TEST_F(Paging, IgnoresAButtonThatTheBarDoesNotHave)
{
    const auto lista = Open();
    lines.clear();
    dynamic_cast<toolkit::NavigationBarModel&>(lista->kvnbBarraDeNavegacao).UserPresses(5);
    EXPECT_TRUE(lines.empty());
    EXPECT_EQ(lista->PaginaAtual, 1);
}

TEST_F(Paging, ReportsAPageBeyondTheSelectionAndGoesOn)
{
    const auto lista = Open();
    Press(4);
    script.Answer(Selecionar, {.records = Table({Appointment(1)})});
    lista->GerarLista();
    lista->AtualizarObjetos(1);
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 3001"), std::string::npos) << Reports()[0];
    EXPECT_NE(Reports()[0].find("frmLista, PreencherGrade, Ponto: 2"), std::string::npos);
    EXPECT_EQ(Numbers(*lista), "1-4/1") << "the bar takes the rows that the grid still shows";
}

TEST_F(Paging, KeepsThePageForEveryOtherMode)
{
    const auto lista = Open();
    Press(3);
    for (const Integer mode : {0, 5, 6, -1}) {
        lista->GerarLista();
        lista->AtualizarObjetos(mode);
        EXPECT_EQ(Numbers(*lista), "20-38/42") << mode;
        EXPECT_EQ(FirstNumber(*lista), "20") << mode;
    }
}

TEST_F(Paging, ReportsAnOverflowOfTheSixteenBitProduct)
{
    const auto lista = Open();
    lista->RegistrosPorPagina = 1000;
    lista->PaginaAtual = 33;
    lista->AtualizarObjetos(0);
    const auto reports = Reports();
    ASSERT_FALSE(reports.empty());
    EXPECT_NE(reports.back().find("Long& 6,"), std::string::npos) << reports.back();
    EXPECT_NE(reports.back().find("frmLista, AtualizarObjetos, Ponto: 11"), std::string::npos)
        << reports.back();
}

TEST_F(Paging, SendsTheSearchTextAlsoWhereNoSearchIsInForce)
{
    const auto lista = Open();
    lista->kvfndPesquisar.Text("rex");
    lista->kvfndPesquisar.Status(find_status::Clear);
    lines.clear();
    EXPECT_EQ(lista->GerarLista(), 0);
    ASSERT_EQ(Lines("call " + Selecionar).size(), 1U);
    EXPECT_NE(Lines("call " + Selecionar)[0].find("Text \"rex\""), std::string::npos);
    EXPECT_FALSE(lista->ListaFiltrada);
    lista->kvfndPesquisar.Status(find_status::Search);
    lista->GerarLista();
    EXPECT_TRUE(lista->ListaFiltrada);
}

TEST_F(Paging, SendsAllFiltersAtOnce)
{
    const auto lista = Open();
    for (auto* combo : {&lista->kvcmbSituacao, &lista->kvcmbTiposDeServicos, &lista->kvcmbFuncionarios}) {
        lista->IgnorarClick = true;
        combo->ListIndex(2);
    }
    lista->kvdtpDataDeAgendamento.Text("21/11/2026");
    lines.clear();
    EXPECT_EQ(lista->GerarLista(), 0);
    const std::vector<std::string> expected{
        R"(call KOVA_N_Agenda.clsAgenda.Selecionar(Long 1, Integer& 19, Long 2, Text "", Text "21/11/2026", )"
        "Long 2, Long 9, Double 0) -> Integer 0"};
    EXPECT_EQ(lines, expected);
    EXPECT_TRUE(lista->ListaFiltrada);
}

TEST_F(Paging, KeepsTheFilterStateWhereTheSelectionFails)
{
    const auto lista = Open();
    lista->ListaFiltrada = true;
    script.Answer(Selecionar, {.result = Long{1}, .members = {{"NumeroDoErro", Long{3}}}});
    EXPECT_EQ(lista->GerarLista(), 1);
    EXPECT_TRUE(lista->ListaFiltrada);
    EXPECT_EQ(Reports().size(), 1U);
}

TEST_F(Paging, TakesATrappedFailureForASuccess)
{
    const auto lista = Open();
    script.Fail(Selecionar, Failure(5, "quebrou"));
    EXPECT_EQ(lista->GerarLista(), 0);
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmLista, GerarLista, Ponto: 1"), std::string::npos)
        << Reports()[0];
}

TEST_F(Paging, PlacesThePanelBelowAFullPageAlsoWhereThePageIsShort)
{
    const auto lista = Open();
    const Twips expected = lista->msfgGrade.Top() + 700 - 570 + 570 * (19 + 2 - 1);
    EXPECT_EQ(lista->picPainel.Top(), expected);
    Press(4);
    EXPECT_EQ(lista->picPainel.Top(), expected);
}

} // namespace

} // namespace kova::agenda
