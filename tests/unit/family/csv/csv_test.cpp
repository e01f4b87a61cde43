#include "family/csv/csv_reader.hpp"
#include "family/csv/csv_writer.hpp"

#include <gtest/gtest.h>

namespace kova::family::csv::test {

namespace {

using Fields = std::vector<std::string>;

struct Reading {
    const char* text;
    std::vector<Fields> records;
};

std::vector<Fields> ReadAll(std::string_view text, char separator = ';')
{
    CsvReader reader(text, separator);
    std::vector<Fields> records;
    for (CsvRecord record; reader.Next(record);)
        records.push_back(record.fields);
    return records;
}

std::vector<long long> LinesOf(std::string_view text)
{
    CsvReader reader(text, ';');
    std::vector<long long> lines;
    for (CsvRecord record; reader.Next(record);)
        lines.push_back(record.line);
    return lines;
}

} // namespace

TEST(Csv, ReadsFieldsAndLines)
{
    const Reading readings[] = {
        {"", {}},
        {"a", {{"a"}}},
        {"a;b\nc;d", {{"a", "b"}, {"c", "d"}}},
        {"a;b\r\nc;d\r\n", {{"a", "b"}, {"c", "d"}}},
        {"a;b\rc;d\r", {{"a", "b"}, {"c", "d"}}},
        {"a\n\nb\n", {{"a"}, {""}, {"b"}}},
        {";a;\n", {{"", "a", ""}}},
        {"\"a;b\";c\n", {{"a;b", "c"}}},
        {"\"a\nb\";c\n", {{"a\nb", "c"}}},
        {"\"a\r\nb\"\r\nc", {{"a\r\nb"}, {"c"}}},
        {"\"a \"\"b\"\"\";\"\"\n", {{"a \"b\"", ""}}},
        {"a \"b\" c;d\n", {{"a \"b\" c", "d"}}},
        {"\"\"\"\"\n", {{"\""}}},
        {"sep=;\r\na;b\n", {{"a", "b"}}},
        {"sep=;", {}},
        {"sep=;x\n", {{"sep=", "x"}}},
    };
    for (const Reading& reading : readings)
        EXPECT_EQ(ReadAll(reading.text), reading.records) << reading.text;
}

TEST(Csv, ReadsOtherSeparators)
{
    EXPECT_EQ(ReadAll("a,\"b,c\";d\n", ','), (std::vector<Fields>{{"a", "b,c;d"}}));
    EXPECT_EQ(ReadAll("a\tb\n", '\t'), (std::vector<Fields>{{"a", "b"}}));
}

TEST(Csv, CountsTheLinesOfTheFile)
{
    EXPECT_EQ(LinesOf("a\nb\n\nc"), (std::vector<long long>{1, 2, 3, 4}));
    EXPECT_EQ(LinesOf("a\r\n\"b\r\nb\"\r\nc\r\n"), (std::vector<long long>{1, 2, 4}));
    EXPECT_EQ(LinesOf("\"b\rb\rb\"\rc"), (std::vector<long long>{1, 4}));
    EXPECT_EQ(LinesOf("sep=;\na\nb"), (std::vector<long long>{2, 3}));
    EXPECT_EQ(CountLines(""), 0);
    EXPECT_EQ(CountLines("a"), 1);
    EXPECT_EQ(CountLines("a\r\nb\r\n"), 2);
    EXPECT_EQ(CountLines("a\rb\n\nc"), 4);
}

TEST(Csv, TellsWhatIsWrongWithQuotes)
{
    CsvRecord record;
    CsvReader(" a;\"b\"c;d\n", ';').Next(record);
    EXPECT_EQ(record.fault, "há texto depois das aspas que fecham um campo.");
    EXPECT_EQ(record.fields, (Fields{" a", "bc", "d"}));
    CsvReader unclosed("a;\"b\nc\nd", ';');
    EXPECT_TRUE(unclosed.Next(record));
    EXPECT_EQ(record.fault, "as aspas que abrem um campo não são fechadas até o fim do arquivo.");
    EXPECT_EQ(record.line, 1);
    EXPECT_FALSE(unclosed.Next(record));
}

TEST(Csv, KnowsABlankRecord)
{
    CsvRecord record;
    CsvReader(";; ;\n", ';').Next(record);
    EXPECT_TRUE(record.IsBlank());
    CsvReader(";;0;\n", ';').Next(record);
    EXPECT_FALSE(record.IsBlank());
}

TEST(Csv, RecognisesTheSeparator)
{
    EXPECT_EQ(RecogniseSeparator("a;b,c;d\n,,,,,"), ';');
    EXPECT_EQ(RecogniseSeparator("a,b\n;;;"), ',');
    EXPECT_EQ(RecogniseSeparator("a\tb\n"), '\t');
    EXPECT_EQ(RecogniseSeparator("\"a;;;b\",c\n"), ',');
    EXPECT_EQ(RecogniseSeparator("sep=,\r\na;b;c\n"), ',');
    EXPECT_EQ(RecogniseSeparator("a\n"), ';');
    EXPECT_EQ(RecogniseSeparator(""), ';');
}

TEST(Csv, WritesWhatItReads)
{
    const Fields fields = {"a", "", "b;c", "d,e", "f \"g\"", "h\ni", " j ", "é"};
    for (const char separator : {';', ','}) {
        const std::string line = CsvLine(fields, separator);
        EXPECT_EQ(ReadAll(line, separator), std::vector<Fields>{fields}) << line;
    }
    EXPECT_EQ(CsvLine({"a", "b;c", "d\"e"}, ';'), "a;\"b;c\";\"d\"\"e\"\r\n");
    EXPECT_EQ(CsvLine({" a", "b ", "c d"}, ';'), "\" a\";\"b \";c d\r\n");
}

TEST(Csv, KeepsSpreadsheetsFromCalculating)
{
    for (const char* text : {"=1+1", "+55 11", "-1", "@soma", "\tx", "'=1", "''=1"}) {
        EXPECT_EQ(Guarded(text), std::string("'") + text);
        EXPECT_EQ(Unguarded(Guarded(text)), text);
    }
    for (const char* text : {"", "a=1", "'", "'a", "d'água", "1-2"}) {
        EXPECT_EQ(Guarded(text), text);
        EXPECT_EQ(Unguarded(text), text);
    }
}

} // namespace kova::family::csv::test
