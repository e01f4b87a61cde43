// agenda-scenario as a program: what it prints, and the status it ends with.

#include "tests/unit/tools/scenario/runner_process.hpp"

#include <utility>

namespace kova::scenario {

namespace {

using TheRunner = RunnerTest;

TEST_F(TheRunner, EndsWithZeroAtTheScriptsEnd)
{
    const Result result = Run(shop + "open\nnote \"fim\"");
    EXPECT_EQ(result.status, 0) << result.text;
    EXPECT_NE(result.text.find("show frmLista\n"), std::string::npos);
    EXPECT_TRUE(result.text.ends_with("fim\n")) << result.text;
}

TEST_F(TheRunner, EndsWithTwoAndTheLineWhereTheScriptIsWrong)
{
    const std::pair<const char*, const char*> wrong[]{
        {"voar", "linha 1: comando desconhecido: 'voar'"},
        {"click frmLista.kvcmdAdicionar", "linha 1: 'click' vem depois de 'open'"},
        {"open\nscreen 800", "linha 2: 'screen' vem antes de 'open'"},
        {"clock 2026-13-01 10:00:00", "linha 1: '2026-13-01 10:00:00' não é AAAA-MM-DD hh:mm:ss"},
        {"answer clsAgenda.Selecionar 0",
         "linha 1: 'clsAgenda.Selecionar' não é CLASSE.MEMBRO com a classe por inteiro"},
        {"answer A.b.C 0 records nada", "linha 1: a tabela 'nada' não existe"},
        {"open\nshow frmLista.kvcmbNada", "linha 2: o controle 'frmLista.kvcmbNada' não existe"},
        {"open\nshow frmLista.kvcmbSituacao.DropDown",
         "linha 2: 'frmLista.kvcmbSituacao' não tem o membro 'DropDown'"},
        {"open\nshow frmLista.msfgGrade.ColWidth", "linha 2: 'ColWidth' pede 1 índice(s)"},
        {"open\nshow frmNada", "linha 2: o formulário 'frmNada' não existe"},
        {"screen \"800\"", "linha 1: '800' não deve estar entre aspas"},
    };
    for (const auto& [script, message] : wrong) {
        const Result result = Run(script);
        EXPECT_EQ(result.status, 2) << script << "\n" << result.text;
        EXPECT_NE(result.text.find(message), std::string::npos) << script << "\n" << result.text;
    }
}

TEST_F(TheRunner, UsesTheNearestSetUpBesideOrAboveTheScript)
{
    Write("shop.setup", shop + "application \"longe\"");
    Write("names.setup", "application \"perto\"");
    Write("a/b/names.setup", "application \"ao lado\"");
    Write("a/b/fim.scenario",
          "use shop\nuse names\nopen\nchoose frmLista.kvcmbSituacao 0\n"
          "answer KOVA_N_Agenda.clsAgenda.Selecionar 1\nkey F5\n");
    const Result result = Call(Folder() + "/a/b/fim.scenario");
    EXPECT_EQ(result.status, 0) << result.text;
    EXPECT_NE(result.text.find("Text& \"ao lado\""), std::string::npos) << result.text;
}

TEST_F(TheRunner, RefusesActsInASetUpByItsFileAndLine)
{
    Write("shop.setup", shop + "note \"x\"");
    const Result noted = Run("use shop\nopen");
    EXPECT_EQ(noted.status, 2);
    EXPECT_NE(noted.text.find("shop.setup, linha 9: 'note' não cabe numa preparação"), std::string::npos)
        << noted.text;
    Write("shop.setup", "open");
    EXPECT_NE(Run("use shop").text.find("shop.setup, linha 1: 'open' não cabe numa preparação"),
              std::string::npos);
    EXPECT_NE(Run("open\nuse late").text.find("linha 2: a preparação 'late.setup' não está"),
              std::string::npos);
}

TEST_F(TheRunner, RefusesWhatItsCommandLineDoesNotKnow)
{
    EXPECT_EQ(Call("").status, 2);
    const Result unknown = Call("--voar x");
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.text, "A opção --voar não existe. Use agenda-scenario --help para ver as opções.\n");
    EXPECT_EQ(Call("x y").status, 2);
    EXPECT_EQ(Call("--fail-at").status, 2);
    EXPECT_EQ(Call("--fail-at 0 x").status, 2);
    EXPECT_EQ(Call("/nao/existe.scenario").status, 2);
    EXPECT_EQ(Call("--help").status, 0);
    EXPECT_EQ(Call("--version").text.find("agenda-scenario "), 0U);
}

TEST_F(TheRunner, SaysWhyTheUserCannotDoAThing)
{
    const Result result = Run(shop
                              + "open\nclick frmLista.kvcmdExcluir\nclick frmLista.kvcmdNada\n"
                                "reply ok\nmenu none\npages\nchoose frmLista.kvcmbSituacao 9\n"
                                "type frmLista.kvcmbSituacao \"x\"");
    EXPECT_EQ(result.status, 0) << result.text;
    for (const char* line :
         {"refused: frmLista.kvcmdExcluir is not visible\n", "refused: frmLista.kvcmdNada does not exist\n",
          "refused: no message box is open\n", "refused: no menu is open\n",
          "refused: no report preview is open\n", "refused: frmLista.kvcmbSituacao has no row 9\n",
          "refused: frmLista.kvcmbSituacao is a KVComboBox\n"})
        EXPECT_NE(result.text.find(line), std::string::npos) << line << result.text;
}

TEST_F(TheRunner, InjectsOneFailureAndCountsTheCrossings)
{
    const Result counted = Run(shop + "open", "--count");
    EXPECT_NE(counted.text.find("count business 10\n"), std::string::npos) << counted.text;
    EXPECT_NE(counted.text.find("count widgets "), std::string::npos);
    const Result failed = Run(shop + "open", "--fail-at 2");
    EXPECT_EQ(failed.status, 0);
    EXPECT_NE(failed.text.find("SelecionarParaComboBox(Double& 0)\nraise 5 \"Falha injetada\"\n"),
              std::string::npos)
        << failed.text;
    const Result widget = Run(shop + "open", "--fail-widgets-at=1");
    EXPECT_NE(widget.text.find("Text& \"Falha injetada\""), std::string::npos) << widget.text;
}

TEST_F(TheRunner, PrintsWidgetWritesOnDemand)
{
    const Result result = Run(shop + "open", "--widgets");
    EXPECT_NE(result.text.find("widget frmLista.kvcmbSituacao.AddItem(Text \"Agendado\")\n"),
              std::string::npos)
        << result.text;
    EXPECT_NE(result.text.find("widget frmLista.kvcmbSituacao.ItemData(1) = Long 1\n"), std::string::npos);
    EXPECT_EQ(Run(shop + "open").text.find("\nwidget "), std::string::npos);
}

TEST_F(TheRunner, MovesItsClockOnlyByPausesAndAdvance)
{
    const Result result = Run(shop
                              + "clock 2026-11-20 23:59:58\nopen\nadvance 3\n"
                                "type frmLista.kvdtpDataDeAgendamento \"1\"\nfocus frmLista.kvfndPesquisar\n"
                                "show frmLista.kvdtpDataDeAgendamento.Text");
    EXPECT_NE(result.text.find("frmLista.kvdtpDataDeAgendamento.Text = \"21/11/2026\"\n"), std::string::npos)
        << result.text;
}

TEST_F(TheRunner, AnswersAWholeNumberAsAStatusAndMembersAsTheyAre)
{
    const Result result =
        Run("answer KOVA_N_TipoDeServ.clsTiposDeServ.SelecionarParaComboBox 1 NumeroDoErro=7 "
            "DescricaoDoErro=\"d e\" LocalDoErro=\"l\"\nopen");
    EXPECT_NE(result.text.find("-> Integer 1\n"), std::string::npos) << result.text;
    EXPECT_NE(result.text.find("NumeroDoErro -> Long 7\n"), std::string::npos);
    EXPECT_NE(result.text.find("DescricaoDoErro -> Text \"d e\"\n"), std::string::npos);
}

} // namespace

} // namespace kova::scenario
