// How a script is read.

#include "tools/scenario/language/script.hpp"
#include "tools/scenario/shown_members.hpp"
#include "tools/scenario/value_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace kova::scenario {

namespace {

std::string ErrorOf(const std::string& text)
{
    try {
        ParseScript(text);
    } catch (const ScriptError& error) {
        return error.what();
    }
    return {};
}

TEST(Script, DropsCommentsAndEmptyLinesAndKeepsLineNumbers)
{
    const Script script = ParseScript("\xEF\xBB\xBF# purpose\r\n\r\nopen   # now\r\n  note \"x # y\"\n");
    ASSERT_EQ(script.statements.size(), 2U);
    EXPECT_EQ(script.statements[0].verb, "open");
    EXPECT_EQ(script.statements[0].line, 3);
    EXPECT_EQ(script.statements[1].QuotedText(0), "x # y");
    EXPECT_EQ(script.statements[1].line, 4);
}

TEST(Script, ReadsTheEscapesOfTexts)
{
    const Script script = ParseScript(R"(note "a\"b\\c\r\nd")");
    EXPECT_EQ(script.statements[0].QuotedText(0), "a\"b\\c\r\nd");
    EXPECT_EQ(Quoted(script.statements[0].QuotedText(0)), R"("a\"b\\c\r\nd")");
}

TEST(Script, ReadsTablesWithTypedValues)
{
    const Script script = ParseScript("records t A B C D\n  \"x, y\", 7, 1.5, null\n\n  # none\nend\nopen");
    const RecordTable& table = script.tables.at("t");
    EXPECT_EQ(table.fields, (std::vector<std::string>{"A", "B", "C", "D"}));
    ASSERT_EQ(table.rows.size(), 1U);
    EXPECT_EQ(table.rows[0], (std::vector<Value>{"x, y", Long{7}, 1.5, Null{}}));
    EXPECT_EQ(script.statements.size(), 1U);
}

TEST(Script, NamesTheLineOfEveryMistake)
{
    EXPECT_EQ(ErrorOf("open\nnote \"x"), "linha 2: o texto entre aspas não termina");
    EXPECT_EQ(ErrorOf("note \"x\\t\""), R"(linha 1: depois de \ vem um de " \ r n)");
    EXPECT_EQ(ErrorOf("note \"x\"y"), "linha 1: falta um espaço depois do texto entre aspas");
    EXPECT_EQ(ErrorOf("\"note\""), "linha 1: a linha deve começar por um comando");
    EXPECT_EQ(ErrorOf("records t A\n1\n"), "linha 1: falta o 'end' da tabela");
    EXPECT_EQ(ErrorOf("records t A\n1, 2\nend"), "linha 2: a linha tem 2 valores e a tabela tem 1 campos");
    EXPECT_EQ(ErrorOf("records t A\nx1\nend"),
              "linha 2: 'x1' não é um valor: texto entre aspas, número ou null");
    EXPECT_EQ(ErrorOf("records t A\n1\nend\nrecords t A\nend"), "linha 4: a tabela 't' já existe");
}

TEST(Script, TellsAppointmentsByTheirDifferences)
{
    const Script script =
        ParseScript("appointments dia\n  1\n  # none\n  2.0, Situacao=3, NomeDoAnimal=\"Mel, a 2a\","
                    " CodigoDoCliente=null\nend\nopen");
    const RecordTable& table = script.tables.at("dia");
    ASSERT_EQ(table.fields.size(), 37U);
    ASSERT_EQ(table.rows.size(), 2U);
    const auto cell = [&](std::size_t row, const char* field) {
        const auto at = std::find(table.fields.begin(), table.fields.end(), field);
        return table.rows[row].at(static_cast<std::size_t>(at - table.fields.begin()));
    };
    EXPECT_EQ(cell(0, "NumeroDeLancamento"), Value(1.0));
    EXPECT_EQ(cell(0, "Situacao"), Value(Long{1}));
    EXPECT_EQ(cell(0, "NomeDoAnimal"), Value("Rex"));
    EXPECT_EQ(cell(1, "NumeroDeLancamento"), Value(2.0));
    EXPECT_EQ(cell(1, "Situacao"), Value(Long{3}));
    EXPECT_EQ(cell(1, "NomeDoAnimal"), Value("Mel, a 2a"));
    EXPECT_EQ(cell(1, "CodigoDoCliente"), Value(Null{}));
    EXPECT_EQ(cell(1, "HoraFinal"), Value("09:00"));
}

TEST(Script, NamesTheLineOfEveryMistakeInAppointments)
{
    EXPECT_EQ(ErrorOf("appointments dia\n  \"1\"\nend"),
              "linha 2: a linha deve começar pelo número do agendamento");
    EXPECT_EQ(ErrorOf("appointments dia\n  Situacao=1\nend"),
              "linha 2: 'Situacao=1' não é um valor: texto entre aspas, número ou null");
    EXPECT_EQ(ErrorOf("appointments dia\n  1, Situacao\nend"), "linha 2: 'Situacao' não é MEMBRO=VALOR");
    EXPECT_EQ(ErrorOf("appointments dia\n  1, Cor=2\nend"), "linha 2: 'Cor' não é um campo de agendamento");
    EXPECT_EQ(ErrorOf("appointments dia Situacao\n1\nend"), "linha 1: 'appointments' não aceita 'Situacao'");
    EXPECT_EQ(ErrorOf("appointments dia\n1\n"), "linha 1: falta o 'end' da tabela");
}

/// Set-ups by name.
SetupReader Setups(std::map<std::string, std::string> texts)
{
    return [texts](const std::string& file) {
        const auto found = texts.find(file);
        return found == texts.end() ? std::nullopt : std::optional(found->second);
    };
}

std::string ErrorOf(const std::string& text, const SetupReader& setups)
{
    try {
        ParseScript(text, setups);
    } catch (const ScriptError& error) {
        return error.what();
    }
    return {};
}

TEST(Script, UsesTheStatementsAndTablesOfASetUpInItsPlace)
{
    const Script script = ParseScript("screen 800\nuse shop\nopen",
                                      Setups({{"shop.setup", "# usual\nuse people\napplication \"Kova\"\n"},
                                              {"people.setup", "user\nrecords t A\n  1\nend"}}));
    ASSERT_EQ(script.statements.size(), 4U);
    EXPECT_EQ(script.statements[1].verb, "user");
    EXPECT_EQ(script.statements[1].line, ScriptLine(1, "people.setup"));
    EXPECT_EQ(script.statements[2].verb, "application");
    EXPECT_EQ(script.statements[3].line, ScriptLine(3));
    EXPECT_EQ(script.tables.at("t").rows.size(), 1U);
}

TEST(Script, SaysOtherwiseThanASetUpByATableOfTheSameName)
{
    const auto setups = Setups({{"shop.setup", "records t A\n  1\nend"}});
    EXPECT_EQ(ParseScript("use shop\nrecords t B\nend", setups).tables.at("t").fields,
              std::vector<std::string>{"B"});
    EXPECT_EQ(ErrorOf("use shop\nrecords t B\nend\nrecords t B\nend", setups),
              "linha 4: a tabela 't' já existe");
}

TEST(Script, NamesTheSetUpOfAMistake)
{
    const auto setups = Setups({{"a.setup", "\nnote \"x"}, {"b.setup", "use c"}, {"c.setup", "use b"}});
    EXPECT_EQ(ErrorOf("use a", setups), "a.setup, linha 2: o texto entre aspas não termina");
    EXPECT_EQ(ErrorOf("use b", setups), "c.setup, linha 1: a preparação 'b.setup' usa a si mesma");
    EXPECT_EQ(ErrorOf("\nuse d", setups),
              "linha 2: a preparação 'd.setup' não está na pasta do roteiro nem nas pastas acima dela");
    EXPECT_EQ(ErrorOf("use a b", setups), "linha 1: 'use' não aceita 'b'");
}

TEST(Script, ReadsPlacesWithTheirIndexes)
{
    const Place cell = ParsePlace("frmLista.msfgGrade.TextMatrix(2,8)", 1);
    EXPECT_EQ(cell.form, "frmLista");
    EXPECT_EQ(cell.control, "msfgGrade");
    EXPECT_EQ(cell.member, "TextMatrix");
    EXPECT_EQ(cell.indexes, (std::vector<Long>{2, 8}));
    const Place inGroup = ParsePlace("frmSelecionarDatas.kvdtpDataInicial(3).Text", 1);
    EXPECT_EQ(inGroup.control, "kvdtpDataInicial");
    EXPECT_EQ(inGroup.controlIndex, 3);
    EXPECT_EQ(inGroup.ControlName(), "frmSelecionarDatas.kvdtpDataInicial(3)");
    EXPECT_EQ(ParsePlace("frmLista.ScaleWidth", 1).member, "ScaleWidth");
    EXPECT_THROW(ParsePlace("a.b.c.d", 1), ScriptError);
    EXPECT_THROW(ParsePlace("a.b.c(x)", 1), ScriptError);
}

TEST(Printing, ShowsTypeAndContent)
{
    EXPECT_EQ(Print(Value()), "Empty");
    EXPECT_EQ(Print(Value(Null{})), "Null");
    EXPECT_EQ(Print(Value(true)), "Boolean True");
    EXPECT_EQ(Print(Value(Integer{-3})), "Integer -3");
    EXPECT_EQ(Print(Value(Long{70000})), "Long 70000");
    EXPECT_EQ(Print(Value(0.1)), "Double 0.1");
    EXPECT_EQ(Print(Value(12.0)), "Double 12");
    EXPECT_EQ(Print(Value("Zé")), "Text \"Zé\"");
    EXPECT_EQ(Print(Value(std::make_shared<NamedObject>("<user>"))), "Object <user>");
    auto array = std::make_shared<Array>(1, 0);
    array->At(1, 0) = "b";
    EXPECT_EQ(Print(Value(array)), "Array 2x1 [Empty, Text \"b\"]");
    Integer rows = 15;
    EXPECT_EQ(Print(ByRef(rows)), "Integer& 15");
}

} // namespace

} // namespace kova::scenario
