// What was exported, edited in a spreadsheet and imported again.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/csv/csv_reader.hpp"
#include "family/csv/encoding.hpp"
#include "family/data/copies/row_copy.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/registers.hpp"

#include <algorithm>
#include <map>
#include <set>

namespace kova::data::test {

namespace {

using family::csv::ByteOrderMark;
using family::csv::CsvReader;
using family::csv::CsvRecord;
using family::csv::Latin1FromUtf8;

using Records = std::vector<std::vector<std::string>>;

/// How a spreadsheet saves a table.
struct Style {
    const char* name;
    char separator;
    const char* lineEnd;
    bool quotesAll, hasMark, isLatin1;
};
constexpr Style Styles[] = {
    {"commas, all texts in quotes, lines of a Unix system", ',', "\n", true, false, false},
    {"semicolons, a mark and lines of Windows", ';', "\r\n", false, true, false},
    {"tabs", '\t', "\r\n", false, false, false},
    {"an older one of Windows", ';', "\r\n", false, false, true},
};

std::string Cell(const std::string& text, const Style& style)
{
    const bool needed = text.find_first_of(std::string("\"\r\n") + style.separator) != std::string::npos;
    if (!needed && !style.quotesAll)
        return text;
    std::string cell = "\"";
    for (const char letter : text)
        cell.append(letter == '"' ? "\"\"" : std::string(1, letter));
    return cell + '"';
}

std::string Saved(const Records& records, const Style& style)
{
    std::string text = style.hasMark ? std::string(ByteOrderMark) : "";
    for (const std::vector<std::string>& record : records) {
        for (std::size_t at = 0; at < record.size(); ++at)
            text += (at == 0 ? "" : std::string(1, style.separator)) + Cell(record[at], style);
        text += style.lineEnd;
    }
    return style.isLatin1 ? Latin1FromUtf8(text).value() : text;
}

Records Opened(const std::string& text)
{
    Records records;
    CsvReader reader(text, ';');
    for (CsvRecord record; reader.Next(record);)
        records.push_back(record.fields);
    return records;
}

/// One cell of a register, and the columns of its table that keep it.
struct Edit {
    std::string name, column, text;
    std::set<std::string> stored;
};
const Edit Edits[] = {
    {"clientes",
     "Bairro",
     "Jardim \"Céu; Mar\"",
     {"bairro", "endereco_completo", "endereco_completo_com_cep", "endereco_de_busca"}},
    {"animais", "Cor", "furta-cor, à noite", {"cor"}},
    {"especies", "Nome", "Lagomorfa", {"nome", "nome_de_busca"}},
    {"racas", "Nome", "Vira-lata, caramelo", {"nome", "nome_de_busca"}},
    {"tipos", "Nome", "Hotelaria", {"nome", "nome_de_busca"}},
    {"servicos", "Preço", "1.234,56", {"preco_em_centavos"}},
    {"funcionarios", "Agendamentos simultâneos", "7", {"agendamentos_simultaneos"}},
    {"feriados", "Nome", "Dia de São Nunca", {"nome"}},
    {"empresa", "Telefone", "0800 111 2222", {"telefone"}},
    {"expediente", "Hora final", "22:30:00", {"hora_final"}},
    {"horarios", "Hora inicial", "7:15", {"hora_inicial"}},
    {"ausencias", "Motivo", "Férias; \"na praia\"", {"motivo"}},
};

} // namespace

/// The demonstration shop with some hours and absences.
class Spreadsheet : public ImportTest {
protected:
    Spreadsheet()
    {
        EXPECT_EQ(Run({"demo", Demo(), "--date", "20/11/2026"}), 0);
        Bring("horarios",
              "Código do funcionário;Dia da semana;Hora inicial;Hora final\n"
              "1;Segunda-feira;08:00;12:00\n1;Segunda-feira;13:00;24:00\n");
        Bring("ausencias",
              "Código do funcionário;Data inicial;Hora inicial;Data final;Hora final;Motivo\n"
              "2;24/12/2026;00:00;02/01/2027;24:00;Férias\n"
              ";25/12/2026;00:00;25/12/2026;24:00;Natal\n");
    }

    std::string Demo() { return Place("demonstracao"); }

    void Bring(const std::string& name, const std::string& content, std::vector<std::string> options = {})
    {
        kova::test::WriteFile(File("planilha.csv"), content);
        options.insert(options.begin(), {"import", Demo(), name, File("planilha.csv")});
        EXPECT_EQ(Run(options), 0) << name << Error();
    }

    std::vector<family::TableSum> AllTables() { return family::SumTables(*family::OpenForReading(Demo())); }
    /// Without those that tell of writes.
    std::vector<family::TableSum> Tables()
    {
        auto sums = AllTables();
        std::erase_if(sums, [](const family::TableSum& sum) {
            return sum.name == "auditoria" || sum.name == "elo_da_auditoria" || sum.name == "gravacao";
        });
        return sums;
    }

    long long Count(const std::string& rows)
    {
        long long count = -1;
        family::OpenForReading(Demo())->Session() << "select count(*) from " + rows, soci::into(count);
        return count;
    }

    /// Every cell of a table as a text, by its row's key and its column.
    std::map<std::pair<std::string, std::string>, std::string> CellsOf(const std::string& table)
    {
        const auto database = family::OpenForReading(Demo());
        const auto tables = family::StoredTables();
        const std::string key =
            std::ranges::find(tables, std::string_view(table), &family::StoredTable::name)->key;
        std::map<std::pair<std::string, std::string>, std::string> cells;
        for (const family::Column& column : family::ColumnsOf(*database, table.c_str())) {
            std::string row, text;
            soci::statement statement =
                (database->Session().prepare << "select cast(" + key + " as text), coalesce(cast("
                         + column.name + " as text), 'Null') from " + table,
                 soci::into(row), soci::into(text));
            statement.execute();
            while (statement.fetch())
                cells[{row, column.name}] = text;
        }
        return cells;
    }

    Records OpenedExport(const std::string& name) { return Opened(Exported(name, Demo())); }

    /// The number of the column with that name.
    static std::size_t ColumnNamed(const Records& records, const std::string& name)
    {
        return static_cast<std::size_t>(std::ranges::find(records.front(), name) - records.front().begin());
    }
};

TEST_F(Spreadsheet, OfEveryRegisterChangesTheCellThatWasEditedAndNothingElse)
{
    std::set<std::string_view> all, edited;
    for (const family::registers::Register* one : family::registers::Registers())
        all.insert(one->Name().name);
    for (const Edit& edit : Edits)
        edited.insert(edit.name);
    EXPECT_EQ(edited, all);
    std::size_t style = 0;
    for (const Edit& edit : Edits) {
        const std::string table = family::registers::RegisterNamed(edit.name)->Table();
        const auto tables = Tables();
        const auto cells = CellsOf(table);
        Records records = OpenedExport(edit.name);
        const long long lines = Count("auditoria");
        const std::string key = records[1][0];
        records[1][ColumnNamed(records, edit.column)] = edit.text;
        Bring(edit.name, Saved(records, Styles[style++ % std::size(Styles)]), {"--update"});
        EXPECT_NE(Output().find("\n0 linhas importadas; 1 registro alterado.\n"), std::string::npos)
            << edit.name << Output();

        std::set<std::string> changed;
        for (const auto& [at, text] : CellsOf(table)) {
            if (text == cells.at(at))
                continue;
            EXPECT_EQ(at.first, key) << edit.name;
            changed.insert(at.second);
        }
        EXPECT_EQ(changed, edit.stored) << edit.name;
        for (const family::TableSum& sum : Tables())
            EXPECT_EQ(std::ranges::count(tables, sum), sum.name == table ? 0 : 1) << edit.name << sum.name;
        EXPECT_EQ(Count("auditoria"), lines + 2) << "the row's line and the import's: " << edit.name;
        EXPECT_EQ(Run({"undo-import", Demo()}), 0) << Error();
        EXPECT_EQ(Tables(), tables) << edit.name;
    }
}

TEST_F(Spreadsheet, OfEveryRegisterThatWasOnlySavedChangesNothingWhateverItsStyle)
{
    const auto before = Tables();
    const long long lines = Count("auditoria");
    for (const Edit& edit : Edits) {
        const Records records = OpenedExport(edit.name);
        ASSERT_GT(records.size(), 1u) << edit.name;
        for (const Style& style : Styles) {
            Bring(edit.name, Saved(records, style), {"--update"});
            EXPECT_NE(Output().find(".\n0 linhas importadas; 0 registros alterados.\n"), std::string::npos)
                << edit.name << style.name << Output();
        }
    }
    EXPECT_EQ(Tables(), before);
    EXPECT_EQ(Count("auditoria"), lines + std::ssize(Edits)) << "the exports' lines alone";
}

TEST_F(Spreadsheet, KeepsTheZerosAtTheBeginningOfDocumentsAndPostalCodes)
{
    ASSERT_EQ(Import("clientes", "Nome;Documento;CEP\nAna;01234567890;01001000\n"), 0) << Error();
    EXPECT_NE(Exported("clientes").find(";012.345.678-90;"), std::string::npos) << Exported("clientes");
    EXPECT_NE(Exported("clientes").find(";01001-000;"), std::string::npos);
    EXPECT_EQ(Ask("select documento || ' ' || cep from cliente"), "01234567890 01001000");
    ASSERT_EQ(Import("empresa", "Nome fantasia;CNPJ\nPet Shop;11222333000181\n"), 0) << Error();
    EXPECT_NE(Exported("empresa").find(";11.222.333/0001-81;"), std::string::npos);
}

TEST_F(Spreadsheet, DoesNotBringAMicrochipWhoseLastDigitsItHasLost)
{
    ImportShop();
    const std::string header = "Código;Código do cliente;Nome;Sexo;Espécie;Porte;Microchip\n";
    for (const char* shortened : {"9,82E+14", "9.82E+14", "9,82000123456789E+014"}) {
        EXPECT_EQ(Import("animais", header + "50;10;Paçoca;F;Canina;Médio;" + shortened + "\n", {"--update"}),
                  1);
        EXPECT_EQ(Error().find(std::string("linha 2: Microchip \"") + shortened
                               + "\": é um número que a planilha abreviou."),
                  0u)
            << Error();
    }
    ASSERT_EQ(Import("animais", header + "50;10;Paçoca;F;Canina;Médio;982000123456789\n", {"--update"}), 0)
        << Error();
    EXPECT_EQ(Ask("select microchip from animal where codigo = 50"), "982000123456789");
}

} // namespace kova::data::test
