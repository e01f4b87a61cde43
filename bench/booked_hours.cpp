// The look at an employee's booked hours, which every booking takes while everybody else waits to write,
// against a search for the same day's rows by the index that fits, through the database engine's own
// interface. In a shop of few employees with its audit. Usage: bench_booked_hours DATABASE

#include "bench/measure.hpp"
#include "bench/measured_days.hpp"
#include "bench/raw_database.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/booked_times.hpp"

#include <filesystem>
#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int Rounds = 31;
constexpr double Limit = 5;

/// Of one employee on one day, by the index that no other plan can beat.
constexpr const char* BareStatement =
    "select data_inicial, hora_inicial, data_final, hora_final from agendamento"
    " indexed by agendamento_por_termino where codigo_do_funcionario = :funcionario and data_final = :data"
    " and situacao <> 3";

template <class Value, class Read>
std::vector<Value> All(const RawDatabase& database, const char* text, Read read)
{
    RawStatement statement(database, text);
    std::vector<Value> all;
    while (statement.Step())
        all.push_back(read(statement));
    return all;
}

struct LookUps {
    std::vector<std::int64_t> employees;
    std::vector<std::string> days;
};

std::size_t Look(family::Database& database, const LookUps& all)
{
    std::size_t rows = 0;
    for (const std::int64_t employee : all.employees)
        for (const std::string& day : all.days)
            rows += family::FindBookedTimes(database, {employee, 0, day, "", day}).size();
    return rows;
}

std::size_t LookBare(RawStatement& statement, const LookUps& all)
{
    std::size_t rows = 0, characters = 0;
    for (const std::int64_t employee : all.employees) {
        for (const std::string& day : all.days) {
            statement.Bind("funcionario", employee);
            statement.Bind("data", day);
            for (; statement.Step(); ++rows)
                for (int column = 0; column < statement.ColumnCount(); ++column)
                    characters += statement.TextAt(column).size();
            statement.Reset();
        }
    }
    return characters == 0 ? 0 : rows;
}

void Measure(const std::string& path)
{
    const RawDatabase raw(path);
    const LookUps all{All<std::int64_t>(raw, "select codigo from funcionario",
                                        [](const RawStatement& row) { return row.NumberAt(0); }),
                      SpreadDays(All<std::string>(raw, AllDaysStatement, [](const RawStatement& row) {
                          return std::string(row.TextAt(0));
                      }))};
    RawStatement statement(raw, BareStatement);
    const auto database = family::OpenDatabase(path);
    const std::size_t rows = LookBare(statement, all);
    if (rows == 0 || Look(*database, all) != rows)
        throw std::runtime_error("the two do not find the same hours");
    std::size_t sum = 0;
    const Comparison comparison = Alternate(
        Rounds, [&] { sum += Look(*database, all); }, [&] { sum += LookBare(statement, all); });
    constexpr std::uintmax_t bytesOfMegabyte = 1024 * 1024;
    PrintLine("(l) booked hours, few employees", comparison, "ms", Limit);
    PrintNote("(l) " + std::to_string(all.employees.size()) + " employees on "
              + std::to_string(all.days.size()) + " days, " + std::to_string(rows)
              + " hours found, in a file of "
              + std::to_string(std::filesystem::file_size(path) / bytesOfMegabyte) + " MB with its audit"
              + (sum == 0 ? " (none)" : ""));
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "usage: bench_booked_hours DATABASE" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1]);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_booked_hours: " << failure.what() << std::endl;
        return 1;
    }
}
