// What the closing of a file leaves behind for the next one who opens it.

#include "tests/support/sqlite_file.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/selections/day_selection.hpp"
#include "family/data/sources/data_source.hpp"
#include "system/path_text.hpp"

#include <filesystem>

namespace kova::family::test {

class ClosingAFile : public testing::Test {
protected:
    ClosingAFile()
    {
        CreateDatabase(path_, [](Database&) {});
    }

    static void WriteAppointments(Database& database, int count)
    {
        database.Session() << "pragma foreign_keys = off";
        database.Session() << "insert into agendamento (data_inicial, hora_inicial, data_final, hora_final,"
                              " tipo_do_agendamento, nome_do_cliente, nome_do_animal, "
                              "numero_do_tipo_de_servico, codigo_do_servico,"
                              " codigo_do_funcionario, situacao, incluido_em, incluido_por)"
                              " with recursive n(i) as (select 1 union all select i + 1 from n where i < "
                + std::to_string(count)
                + ") select '2026-11-20', '09:00', '2026-11-20', '10:00', 1, 'C', 'A', 4, 2, i % 5, 1,"
                  " '2026-11-01 09:00:00', 'Carla' from n";
    }

    /// A day's work: rows are written, and found by an index.
    void Work(int appointments)
    {
        const auto database = OpenDatabase(path_);
        WriteAppointments(*database, appointments);
        EXPECT_EQ(SelectDay(*database, {"2026-11-21", 0, 0, 0, 0, ""}).rows.size(), 0U);
    }

    /// What the engine knows of the appointments: their number, as the index by the beginning tells it.
    int Known()
    {
        const auto known = kova::test::SqliteFile(path_).Run(
            "select stat from sqlite_stat1 where idx = 'agendamento_por_inicio'");
        return known.empty() ? 0 : std::stoi(known.front());
    }

    TemporaryFolder folder_;
    const std::string path_ = folder_ / "loja.db";
};

TEST_F(ClosingAFile, HasTheEngineLookAtATableThatWasEmpty)
{
    EXPECT_EQ(Known(), 0);
    Work(100);
    EXPECT_GT(Known(), 0);
}

TEST_F(ClosingAFile, HasItLookAgainWhenATableHasGrownAGoodDeal)
{
    Work(100);
    const int first = Known();
    Work(5000);
    EXPECT_GT(Known(), 10 * first);
}

TEST_F(ClosingAFile, LeavesItAsItIsWhereNothingWasWritten)
{
    Work(1);
    const auto written = std::filesystem::last_write_time(system::PathOf(path_));
    {
        const auto database = OpenDatabase(path_);
        EXPECT_EQ(SelectDay(*database, {"2026-11-21", 0, 0, 0, 0, ""}).rows.size(), 0U);
    }
    EXPECT_EQ(std::filesystem::last_write_time(system::PathOf(path_)), written);
}

TEST_F(ClosingAFile, WaitsForNobodyWhoIsWriting)
{
    kova::test::SqliteFile other(path_);
    {
        const auto database = OpenDatabase(path_);
        WriteAppointments(*database, 100);
        EXPECT_EQ(SelectDay(*database, {"2026-11-21", 0, 0, 0, 0, ""}).rows.size(), 0U);
        other.Run("begin immediate");
    }
    other.Run("rollback");
    EXPECT_EQ(Known(), 0);
    Work(1);
    EXPECT_GT(Known(), 0) << "the next one to close looks";
}

} // namespace kova::family::test
