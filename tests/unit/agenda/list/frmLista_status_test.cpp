// The four status buttons.

#include "tests/unit/agenda/module_fixture.hpp"

namespace kova::agenda {

namespace {

const std::string Selecionar = "KOVA_N_Agenda.clsAgenda.Selecionar";
const std::string Alterar = "KOVA_N_Agenda.clsAgenda.Alterar";
const std::string Pacote = "KOVA_N_Agenda.clsAgenda.AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa";
const std::string Falhou =
    R"("Não foi possível alterar a situação do agendamento - Tente novamente mais tarde.")";

class Marking : public ModuleTest {
protected:
    std::shared_ptr<frmLista> OpenOn(std::vector<std::map<std::string, Value>> rows, Long hovered = 1)
    {
        std::vector<std::vector<Value>> table;
        for (const auto& changes : rows)
            table.push_back(Appointment(static_cast<int>(table.size()) + 1, changes));
        script.Always(Selecionar, {.records = Table(std::move(table))});
        auto lista = Open();
        EXPECT_EQ(user.Hover("frmLista", "msfgGrade", hovered), "");
        lines.clear();
        return lista;
    }

    void Mark(const char* status)
    {
        EXPECT_EQ(user.Click("frmLista", std::string("kvcmdMarcarAgendamentoComo") + status), "");
    }

    /// What crossed the business border up to the reload.
    std::vector<std::string> Written() const
    {
        std::vector<std::string> found;
        for (const std::string& line : lines) {
            if (line.find("Selecionar(") != std::string::npos)
                break;
            found.push_back(line);
        }
        return found;
    }
};

TEST_F(Marking, SendsTheStatusAloneWhereNoPreSaleIsConcerned)
{
    const auto lista = OpenOn({{}, {{"Situacao", Long{3}}}}, 2);
    Mark("Agendado");
    const std::vector<std::string> expected{
        "set KOVA_N_Agenda.clsAgenda.AtualizarSomenteOCampoSituacao Boolean True",
        "set KOVA_N_Agenda.clsAgenda.SituacaoAtual Integer 3",
        "set KOVA_N_Agenda.clsAgenda.SituacaoNova Integer 1",
        "set KOVA_N_Agenda.clsAgenda.NumeroDeLancamento Double 2",
        "set KOVA_N_Agenda.clsAgenda.DadosDoUsuario Object <user>",
        "call KOVA_N_Agenda.clsAgenda.Alterar() -> Integer 0",
        "get KOVA_N_Agenda.clsAgenda.RegistroPercenteAUmPacoteDeBanhoETosa -> Boolean False",
    };
    EXPECT_EQ(Written(), expected);
    EXPECT_EQ(Lines("call " + Selecionar).size(), 1U);
    EXPECT_TRUE(Boxes().empty());
    EXPECT_TRUE(lista->msfgGrade.Enabled());
    EXPECT_EQ(lista->msfgGrade.Row(), 2);
    EXPECT_EQ(lista->msfgGrade.SelectionMode(), 1);
    EXPECT_EQ(lista->msfgGrade.ColSel(), 38);
}

TEST_F(Marking, SendsTheWholeSetForAPreSaleInEitherDirection)
{
    const std::vector<std::string> more{
        "set KOVA_N_Agenda.clsAgenda.CodigoDoCliente Double 12",
        "set KOVA_N_Agenda.clsAgenda.CodigoDoAnimal Long 3",
        "set KOVA_N_Agenda.clsAgenda.NumeroDoTipoDeServico Long 4",
        "set KOVA_N_Agenda.clsAgenda.CodigoDoServico Double 8",
        "set KOVA_N_Agenda.clsAgenda.CodigoDoFuncionario Long 7",
        R"(set KOVA_N_Agenda.clsAgenda.DataInicial Text "20/11/2026")",
    };
    OpenOn({{}, {{"Situacao", Long{4}}}});
    Mark("AtendidoEGeradoPreVenda");
    auto written = Written();
    ASSERT_GT(written.size(), 7U);
    EXPECT_EQ(std::vector<std::string>(written.begin() + 1, written.begin() + 7), more);
    EXPECT_EQ(written[7], "set KOVA_N_Agenda.clsAgenda.SituacaoAtual Integer 1");
    EXPECT_EQ(written[8], "set KOVA_N_Agenda.clsAgenda.SituacaoNova Integer 4");

    user.Hover("frmLista", "msfgGrade", 2);
    lines.clear();
    Mark("Atendido");
    written = Written();
    ASSERT_GT(written.size(), 7U);
    EXPECT_EQ(std::vector<std::string>(written.begin() + 1, written.begin() + 7), more)
        << "undoing a pre-sale takes as much";
}

TEST_F(Marking, DoesNothingWhereTheRowHasThatStatusAlready)
{
    const auto lista = OpenOn({{{"Situacao", Long{2}}}});
    Mark("Atendido");
    EXPECT_TRUE(lines.empty());
    EXPECT_TRUE(Boxes().empty());
    EXPECT_TRUE(lista->msfgGrade.Enabled());
}

TEST_F(Marking, RefusesAPreSaleForAClinicalServiceBeforeAnythingElse)
{
    const auto lista = OpenOn({{{"NumeroDoTipoDeServico", Long{3}}, {"CodigoDoCliente", ""}}});
    Mark("AtendidoEGeradoPreVenda");
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Boxes()[0],
              R"(box information "Kova" "Não é possível gerar pré-venda para serviços tipo clínico." -> ok)");
    EXPECT_TRUE(lines.empty());
    EXPECT_TRUE(lista->msfgGrade.Enabled());
}

TEST_F(Marking, RefusesAPreSaleForASimplifiedAppointment)
{
    const auto lista = OpenOn({{{"CodigoDoCliente", ""}}});
    Mark("AtendidoEGeradoPreVenda");
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(
        Boxes()[0],
        R"(box information "Kova" "Não é possível gerar pré-venda para agendamento simplificado." -> ok)");
    EXPECT_TRUE(lines.empty());
    EXPECT_TRUE(lista->msfgGrade.Enabled());
}

TEST_F(Marking, TellsOfAFailedWriteAndReloadsAllTheSame)
{
    for (const Integer status : {1, 2, 3, 9, -1}) {
        const auto lista = OpenOn({{}, {}}, 2);
        toolkit.ClearLog();
        script.Answer(Alterar, {.result = status});
        Mark("Cancelado");
        ASSERT_EQ(Boxes().size(), 1U) << status;
        EXPECT_EQ(Boxes()[0], "box information \"Kova\" " + Falhou + " -> ok");
        EXPECT_TRUE(Lines("get KOVA_N_Agenda.clsAgenda.NumeroDoErro").empty()) << "no error member is read";
        EXPECT_TRUE(Reports().empty());
        EXPECT_EQ(Lines("call " + Selecionar).size(), 1U);
        EXPECT_EQ(lista->msfgGrade.Row(), 2);
    }
}

TEST_F(Marking, AsksForThePackageByTheWordOfTheNewStatus)
{
    const std::pair<const char*, const char*> words[]{
        {"Agendado", "'AGENDADO'"}, {"Atendido", "'CANCELADO'"}, {"Cancelado", "'CANCELADO'"}};
    for (const auto& [status, word] : words) {
        OpenOn({{{"Situacao", Long{4}}}});
        toolkit.ClearLog();
        script.Answer(Alterar, {.members = {{"RegistroPercenteAUmPacoteDeBanhoETosa", true}}});
        toolkit.Queue().QueueReply(Reply::No);
        Mark(status);
        ASSERT_EQ(Boxes().size(), 1U);
        EXPECT_EQ(
            Boxes()[0],
            std::string(
                R"(box question "Kova" "Este agendamento pertence a um pacote de banho e tosa.\r\n\r\n)")
                + "Deseja alterar a situação para " + word
                + R"( de TODOS os agendamentos deste pacote que não foram atendidos?" -> no)");
        EXPECT_TRUE(Lines("call " + Pacote).empty());
    }
}

TEST_F(Marking, ChangesTheWholePackageOnYes)
{
    OpenOn({{}});
    script.Answer(Alterar, {.members = {{"RegistroPercenteAUmPacoteDeBanhoETosa", true}}});
    toolkit.Queue().QueueReply(Reply::Yes);
    Mark("Cancelado");
    ASSERT_EQ(Lines("call " + Pacote).size(), 1U);
    EXPECT_EQ(Lines("call " + Pacote)[0], "call " + Pacote + "(Integer& 3) -> Integer 0");
    EXPECT_EQ(Boxes().size(), 1U);
}

TEST_F(Marking, TellsOfAPackageThatCouldNotBeChanged)
{
    OpenOn({{}});
    script.Answer(Alterar, {.members = {{"RegistroPercenteAUmPacoteDeBanhoETosa", true}}});
    script.Answer(Pacote, {.result = Integer{1}});
    toolkit.Queue().QueueReply(Reply::Yes);
    Mark("Cancelado");
    ASSERT_EQ(Boxes().size(), 2U);
    EXPECT_EQ(Boxes()[1], "box information \"Kova\" " + Falhou + " -> ok");
}

TEST_F(Marking, LandsOnWhateverRowHoldsTheNumberNow)
{
    const auto lista = OpenOn({{}, {}, {}}, 2);
    script.Answer(Selecionar, {.records = Table({Appointment(8), Appointment(9)})});
    Mark("Cancelado");
    EXPECT_EQ(lista->msfgGrade.Row(), 2);
    EXPECT_EQ(lista->msfgGrade.TextMatrix(2, 1), "9");
    EXPECT_TRUE(Reports().empty());
}

TEST_F(Marking, ReportsARowThatIsGone)
{
    OpenOn({{}, {}, {}}, 3);
    script.Answer(Selecionar, {.records = Table({Appointment(8)})});
    Mark("Cancelado");
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 30009"), std::string::npos) << Reports()[0];
    EXPECT_NE(Reports()[0].find(", frmLista, kvcmdMarcarAgendamentoComoCancelado_Click, Ponto: 5"),
              std::string::npos);
}

TEST_F(Marking, LeavesTheGridDisabledWhereItFailsBeforeTheWriteHasEnded)
{
    const auto lista = OpenOn({{{"Situacao", "99999"}}});
    Mark("Atendido");
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 6,"), std::string::npos) << Reports()[0];
    EXPECT_NE(Reports()[0].find(", kvcmdMarcarAgendamentoComoAtendido_Click, Ponto: 2"), std::string::npos)
        << Reports()[0];
    EXPECT_FALSE(lista->msfgGrade.Enabled());
}

TEST_F(Marking, TakesAWriteThatBreaksForAFailedOne)
{
    OpenOn({{}});
    script.Fail(Alterar, Failure(5, "quebrou"));
    Mark("Cancelado");
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find(", frmLista, AlterarSituacaoDoAgendamento, Ponto: 12"), std::string::npos);
    ASSERT_EQ(Boxes().size(), 1U);
}

TEST_F(Marking, LetsNoHoverMoveTheRowWhileAQuestionIsOpen)
{
    const auto lista = OpenOn({{}, {}});
    bool enabled = true;
    script.Answer(Alterar, {.members = {{"RegistroPercenteAUmPacoteDeBanhoETosa", true}}});
    toolkit.Queue().QueueReply(Reply::No);
    toolkit.OnLine([&](const std::string& line) {
        if (line.starts_with("box question"))
            enabled = lista->msfgGrade.Enabled();
    });
    Mark("Cancelado");
    EXPECT_FALSE(enabled);
}

TEST_F(Marking, TakesAKeyForEachStatusOnTheRowThatTheArrowsReached)
{
    const auto lista = OpenOn({{{"Situacao", Long{3}}}, {{"Situacao", Long{3}}}}, 1);
    EXPECT_EQ(user.GridKey("frmLista", "msfgGrade", toolkit::GridKey::Down), "");
    int expected = 1;
    for (const char* key : {"Ctrl+1", "Ctrl+2"}) {
        lines.clear();
        EXPECT_EQ(user.PressShortcut("frmLista", key), "");
        EXPECT_EQ(Lines("set KOVA_N_Agenda.clsAgenda.SituacaoNova").front(),
                  "set KOVA_N_Agenda.clsAgenda.SituacaoNova Integer " + std::to_string(expected++));
        EXPECT_EQ(Lines("set KOVA_N_Agenda.clsAgenda.NumeroDeLancamento").front(),
                  "set KOVA_N_Agenda.clsAgenda.NumeroDeLancamento Double 2");
    }
}

TEST_F(Marking, ListsTheKeysOfTheRowsCommandsOnF1OnceARowIsReached)
{
    script.Always(Selecionar, {.records = Table({Appointment(1)})});
    const auto lista = Open();
    toolkit.ClearLog();
    EXPECT_EQ(user.PressShortcut("frmLista", "F1"), "");
    EXPECT_GT(toolkit.Log().size(), 1U);
    for (const std::string& line : toolkit.Log())
        EXPECT_EQ(line.find("Excluir"), std::string::npos);
    EXPECT_EQ(user.Hover("frmLista", "msfgGrade", 1), "");
    toolkit.ClearLog();
    EXPECT_EQ(user.PressShortcut("frmLista", "F1"), "");
    const std::vector<std::string> expected{
        "help frmLista",
        "  F2: Adicionar agendamento",
        "  F3: Pesquisar na agenda",
        "  Alt+←: Dia anterior",
        "  Alt+→: Próximo dia",
        "  Ctrl+P: Imprimir lista",
        "  F7: Agendamentos do dia",
        "  Ctrl+1: Marcar agendamento como agendado",
        "  Ctrl+2: Marcar agendamento como atendido",
        "  Ctrl+3: Marcar agendamento como cancelado",
        "  Ctrl+4: Marcar agendamento como atendido e gerado pré-venda",
        "  F4: Detalhar",
        "  F6: Alterar",
        "  F8: Excluir",
        "  F9: Imprimir fichas ou etiqueta",
        "  ↑ ↓: Ir de linha em linha na lista",
        "  Enter: Detalhar a linha",
        "  F5: Atualizar a lista",
        "  Tab: Ir para o próximo campo",
        "  F1: Mostrar esta ajuda",
    };
    EXPECT_EQ(toolkit.Log(), expected);
}

} // namespace

} // namespace kova::agenda
