// Lines about appointments keep short names, and are told by the columns' own.

#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audit_lines.hpp"
#include "family/data/audit/short_names.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/appointment_rows.hpp"

#include <set>

namespace kova::family::test {

class ShortNames : public ShopTest {
protected:
    const Author lia_{"7", "Lia", "2026-11-20 09:04:05", "BALCAO-1"};
    std::shared_ptr<Database> database_ = OpenDatabase(host_.DataSource());
};

TEST_F(ShortNames, AreNoColumnsOfAnyTableAndEachStandsForOne)
{
    std::set<std::string> names;
    AppointmentRow().Columns([&](std::string_view column, const auto&) {
        const std::string_view name = NameInLine(AppointmentRow::Table, column);
        EXPECT_EQ(ColumnOfName(name), column);
        if (name != column)
            names.emplace(name);
        EXPECT_EQ(NameInLine("cliente", column), column);
    });
    EXPECT_EQ(names.size(), 23U);
    for (const StoredTable& table : StoredTables(*database_))
        for (const Column& column : ColumnsOf(*database_, table.name))
            EXPECT_FALSE(names.contains(column.name)) << table.name << "." << column.name;
}

TEST_F(ShortNames, StandInLinesOfAppointmentsAlone)
{
    const AuditValues before = AuditValues().Add("situacao", 1).Add("importacao", 5),
                      after = AuditValues().Add("situacao", 2).Add("importacao", 6);
    for (const char* table : {"agendamento", "animal"})
        AuditChange(*database_, lia_, table, 9, before, after);
    const soci::rowset<std::string> lines =
        (database_->Session().prepare << "select antes || depois from auditoria where chave = 9"
                                         " order by codigo");
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.end()),
              (std::vector<std::string>{R"({"si":1,"importacao":5}{"si":2,"importacao":6})",
                                        R"({"situacao":1,"importacao":5}{"situacao":2,"importacao":6})"}));
    for (const char* table : {"agendamento", "animal"}) {
        const AuditLine line = FindAuditLines(*database_, table, 9, 1).at(0);
        EXPECT_EQ(line.before.at("situacao"), "1");
        EXPECT_EQ(line.after.at("situacao"), "2");
    }
}

TEST_F(ShortNames, OfEachKindOfLineAreReadBack)
{
    AppointmentRow row;
    row.numero = 9;
    row.dataInicial = "2026-11-20";
    row.nomeDoCliente = "D'Ávila \"Zé\"";
    AuditInsertion(*database_, lia_, AppointmentRow::Table, 9, ValuesOf(row));
    AuditRemoval(*database_, lia_, AppointmentRow::Table, 9, ValuesOf(row));
    AuditRestoration(*database_, lia_, AppointmentRow::Table, 9, ValuesOf(row));
    const std::pair<Key, AuditValues> removed[] = {{9, ValuesOf(row)}};
    AuditRemovals(*database_, lia_, AppointmentRow::Table, removed);
    const std::vector<AuditLine> lines = FindAuditLines(*database_, AppointmentRow::Table, 9, 10);
    ASSERT_EQ(lines.size(), 4U);
    for (const AuditLine& line : lines) {
        const AuditedColumns& kept = line.before.empty() ? line.after : line.before;
        EXPECT_EQ(kept.at("data_inicial"), "2026-11-20") << line.operation;
        EXPECT_EQ(kept.at("nome_do_cliente"), "D'Ávila \"Zé\"") << line.operation;
        EXPECT_FALSE(kept.contains("di") || kept.contains("nc")) << line.operation;
    }
    int longNames = 0;
    database_->Session() << "select count(*) from auditoria where chave = 9 and (coalesce(antes, '') like"
                            " '%data_inicial%' or coalesce(depois, '') like '%data_inicial%')",
        soci::into(longNames);
    EXPECT_EQ(longNames, 0);
}

} // namespace kova::family::test
