// Opening hours, employees' hours and absences in memory.

#include "tests/unit/family/server_fixture.hpp"

#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/work_rows.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/booking_registers.hpp"
#include "family/data/stores/work_tables.hpp"

namespace kova::family::test {

TEST(WeeklyHours, CoverWhatLiesWithinThem)
{
    WeeklyHours hours;
    for (const PartOfDay part : {PartOfDay{480, 600}, {540, 560}, {590, 720}, {720, 780}, {900, 1440}})
        hours.Add(2, part);
    struct {
        PartOfDay part;
        bool covered;
    } const cases[] = {
        {{480, 780}, true},   {{500, 501}, true},  {{599, 721}, true},   {{900, 1440}, true},
        {{0, 0}, true},       {{479, 600}, false}, {{480, 781}, false},  {{779, 900}, false},
        {{780, 900}, false},  {{0, 480}, false},   {{899, 1000}, false}, {{0, 1440}, false},
        {{480, 1440}, false},
    };
    for (const auto& one : cases)
        EXPECT_EQ(hours.Cover(2, one.part), one.covered) << one.part.from << " " << one.part.until;
    EXPECT_FALSE(hours.Cover(3, {480, 500}));
}

class WorkInMemory : public ShopTest {
protected:
    std::shared_ptr<const WorkTables> Tables(std::optional<long long> changes = {})
    {
        return FindWorkTables(*database_, changes);
    }
    void Run(const std::string& statement) { database_->Session() << statement; }

    std::shared_ptr<Database> database_ = OpenDatabase(host_.DataSource());
};

TEST_F(WorkInMemory, HasEveryRowInItsPlace)
{
    Insert(*database_, OpeningHoursRow{70, 1, "18:30", "24:00"});
    Insert(*database_, EmployeeHoursRow{70, 2, 3, "13:00", "18:00"});
    Insert(*database_, EmployeeHoursRow{71, 2, 3, "08:00", "12:00"});
    Insert(*database_, AbsenceRow{70, Key(2), "2026-12-02", "00:00", "2026-12-03", "24:00", "Férias"});
    Insert(*database_, AbsenceRow{71, Key(2), "2026-12-01", "10:00", "2026-12-01", "11:00", "Dentista"});
    Insert(*database_, AbsenceRow{72, {}, "2026-12-24", "12:00", "2026-12-26", "00:00", "Recesso"});
    const auto tables = Tables();
    EXPECT_TRUE(tables->shop.Cover(1, {1110, 1440}));
    EXPECT_FALSE(tables->shop.Cover(1, {1109, 1440}));
    for (int weekday = 2; weekday <= 7; ++weekday)
        EXPECT_TRUE(tables->shop.Cover(weekday, {0, 1440})) << weekday;
    ASSERT_EQ(tables->employees.size(), 1U);
    EXPECT_TRUE(tables->employees.at(2).Cover(3, {480, 720}));
    EXPECT_TRUE(tables->employees.at(2).Cover(3, {780, 1080}));
    EXPECT_FALSE(tables->employees.at(2).HasAnyOn(2));
    ASSERT_EQ(tables->absences.at(2).size(), 2U);
    const Absence& first = tables->absences.at(2).front();
    EXPECT_EQ(first.reason, "Dentista");
    EXPECT_EQ(first.from, (DateTime{{2026, 12, 1}, {10, 0, 0}}));
    EXPECT_EQ(first.until, (DateTime{{2026, 12, 1}, {11, 0, 0}}));
    ASSERT_EQ(tables->absences.at(0).size(), 1U);
    EXPECT_EQ(tables->absences.at(0).front().until, (DateTime{{2026, 12, 26}, {0, 0, 0}}));
}

TEST_F(WorkInMemory, IsReadAgainAfterEveryKindOfChangeInAnyOfItsTables)
{
    auto former = Tables();
    EXPECT_EQ(Tables(), former);
    for (const char* change :
         {"insert into expediente (codigo, dia_da_semana, hora_inicial, hora_final)"
          " values (70, 1, '08:00', '12:00')",
          "update expediente set hora_final = '13:00' where codigo = 70",
          "delete from expediente where codigo = 70",
          "insert into horario_do_funcionario (codigo, codigo_do_funcionario, dia_da_semana, hora_inicial,"
          " hora_final) values (70, 2, 1, '08:00', '12:00')",
          "update horario_do_funcionario set codigo_do_funcionario = 1 where codigo = 70",
          "delete from horario_do_funcionario where codigo = 70",
          "insert into ausencia (codigo, data_inicial, hora_inicial, data_final, hora_final, motivo)"
          " values (70, '2026-12-01', '08:00', '2026-12-01', '18:00', 'Reforma')",
          "update ausencia set motivo = 'Luto' where codigo = 70",
          "delete from ausencia where codigo = 70"}) {
        Run(change);
        const auto now = Tables();
        EXPECT_NE(now, former) << change;
        EXPECT_EQ(Tables(), now) << change;
        former = now;
    }
    Run("update funcionario set situacao = 2 where codigo = 3");
    EXPECT_EQ(Tables(), former);
}

TEST_F(WorkInMemory, IsNotAskedForAgainWhereItsChangesAreKnown)
{
    const auto known = [&] { return FindBookingRegisters(*database_, {}).changesOfWorkTables; };
    const long long before = known();
    const auto tables = Tables(before);
    EXPECT_EQ(Tables(), tables) << "both count the same";
    Run("update expediente set hora_inicial = '08:00' where dia_da_semana = 2");
    EXPECT_EQ(Tables(before), tables);
    EXPECT_NE(known(), before);
    EXPECT_NE(Tables(known()), tables);
}

class WorkOnServerPostgresql : public PostgresqlShop { };

TEST_F(WorkOnServerPostgresql, CountsItsChangesWhateverSchemaTheNamesOfAWriterStandFor)
{
    const auto counted = [&] {
        return std::stoi(shop_.Run("select sum(alteracoes) from public.contador_de_alteracoes").front());
    };
    const int before = counted();
    shop_.Run("create schema alheio; set search_path = alheio;"
              " delete from public.expediente where dia_da_semana = 7");
    shop_.Run("set search_path = alheio; insert into public.horario_do_funcionario (codigo_do_funcionario,"
              " dia_da_semana, hora_inicial, hora_final) values (2, 2, '08:00', '18:00')");
    shop_.Run("set search_path = alheio; insert into public.ausencia (data_inicial, hora_inicial,"
              " data_final, hora_final, motivo) values ('2026-12-01', '08:00', '2026-12-01', '18:00', 'x')");
    EXPECT_EQ(counted(), before + 3);
}

} // namespace kova::family::test
