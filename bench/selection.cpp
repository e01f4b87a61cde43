// Day selection through the business component, called by name, against the same statement through the
// database engine's own interface. Usage: bench_selection DATABASE

#include "bench/data_host.hpp"
#include "bench/measure.hpp"
#include "bench/measured_days.hpp"
#include "bench/raw_database.hpp"
#include "family/business/appointments/agenda.hpp"
#include "family/data/engine/dialect.hpp"
#include "family/data/selections/day_selection.hpp"

#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int Rounds = 31;
constexpr double SelectionLimit = 1.3;
constexpr double SearchLimit = 1.1;
/// A part of several customers' and animals' names on every day.
constexpr const char* SearchText = "mar";

std::vector<std::string> AllDays(const RawDatabase& database)
{
    RawStatement statement(database, AllDaysStatement);
    std::vector<std::string> all;
    while (statement.Step())
        all.emplace_back(statement.TextAt(0));
    return all;
}

Read SelectRaw(RawStatement& statement, const std::vector<std::string>& days)
{
    Read read;
    const int columns = statement.ColumnCount();
    for (const std::string& day : days) {
        BindDay(statement, day);
        while (statement.Step()) {
            ++read.rows;
            for (int column = 0; column < columns; ++column)
                read.checksum += statement.IsText(column)
                    ? static_cast<std::int64_t>(statement.TextAt(column).size())
                    : statement.NumberAt(column);
        }
        statement.Reset();
    }
    return read;
}

void Measure(const std::string& path)
{
    if (RawDatabase::Settings() != family::SqliteDialect().settings)
        throw std::runtime_error("the floor's settings are not those of the product");
    RawDatabase database(path);
    RawStatement statement(database, family::DayStatement());
    const std::vector<std::string> days = SpreadDays(AllDays(database));
    DataHost host(path);
    family::Agenda agenda(host);

    const Read all = SelectRaw(statement, days);
    if (SelectByName(agenda, days, "") != all.rows)
        throw std::runtime_error("the two do not select the same rows");
    std::int64_t sum = 0;
    const auto byName = [&] { sum += SelectByName(agenda, days, ""); };
    const auto byNameSearching = [&] { sum += SelectByName(agenda, days, SearchText); };
    const auto raw = [&] { sum += SelectRaw(statement, days).checksum; };
    PrintLine("(a) day selection, 10 days", Alternate(Rounds, byName, raw), "ms", SelectionLimit);
    PrintLine("(a) with text search / without", Alternate(Rounds, byNameSearching, byName), "ms",
              SearchLimit);
    PrintNote("(a) " + std::to_string(all.rows) + " rows on 10 days, "
              + std::to_string(SelectByName(agenda, days, SearchText)) + " of them with \"" + SearchText
              + "\"; checksum " + std::to_string(all.checksum) + (sum == 0 ? " (none)" : ""));
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "usage: bench_selection DATABASE" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1]);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_selection: " << failure.what() << std::endl;
        return 1;
    }
}
