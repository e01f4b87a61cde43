// Day selection through the business component, called by name, against the same statement through the
// database engine's own interface. Usage: bench_selection DATABASE

#include "bench/data_host.hpp"
#include "bench/measure.hpp"
#include "bench/raw_database.hpp"
#include "family/business/agenda.hpp"
#include "family/data/day_selection.hpp"
#include "family/data/dialect.hpp"

#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int Rounds = 31;
constexpr int MeasuredDays = 10;
constexpr double SelectionLimit = 1.3;
constexpr double SearchLimit = 1.1;
/// A part of several customers' and animals' names on every day.
constexpr const char* SearchText = "mar";

/// Days spread evenly over all that have appointments, "yyyy-mm-dd".
std::vector<std::string> SpreadDays(const RawDatabase& database)
{
    RawStatement statement(database, "select distinct data_inicial from agendamento order by data_inicial");
    std::vector<std::string> all;
    while (statement.Step())
        all.emplace_back(statement.TextAt(0));
    if (all.size() < MeasuredDays)
        throw std::runtime_error("the database has too few days");
    std::vector<std::string> spread;
    for (std::size_t i = 0; i < MeasuredDays; ++i)
        spread.push_back(all[(2 * i + 1) * all.size() / (2 * MeasuredDays)]);
    return spread;
}

/// "dd/mm/yyyy"
std::string ShownDay(const std::string& day)
{
    return day.substr(8, 2) + "/" + day.substr(5, 2) + "/" + day.substr(0, 4);
}

/// Selects every day into the component's record set. Answers how many rows there were.
std::int64_t SelectByName(Component& agenda, const std::vector<std::string>& days, const char* text)
{
    std::int64_t rows = 0;
    Integer pageRows = 30;
    for (const std::string& day : days) {
        const Value status = agenda.Call(
            "Selecionar",
            {Long{1}, ByRef(pageRows), Long{0}, text, ShownDay(day), Long{0}, Long{0}, Double{0}});
        if (status.ToInteger() != 0)
            throw std::runtime_error(agenda.Get("DescricaoDoErro").ToText());
        rows += agenda.Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>()->RecordCount();
    }
    return rows;
}

struct Read {
    std::int64_t rows = 0;
    /// Of every column of every row, so that none is left out.
    std::int64_t checksum = 0;
};

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
    const std::vector<std::string> days = SpreadDays(database);
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
