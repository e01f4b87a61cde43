// How a script is read.

#include "tools/scenario/script.hpp"
#include "tools/scenario/shown_members.hpp"
#include "tools/scenario/value_text.hpp"

#include <gtest/gtest.h>

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
