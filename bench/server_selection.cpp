// Day selection on a server through the business component, called by name, against the same statement
// through the server's client library. Usage: bench_server_selection ADDRESS

#include "bench/data_host.hpp"
#include "bench/measure.hpp"
#include "bench/measured_days.hpp"
#include "bench/raw_server.hpp"
#include "family/business/appointments/agenda.hpp"
#include "family/data/selections/day_selection.hpp"

#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int Rounds = 31;
constexpr double Limit = 1.5;

std::vector<std::string> AllDays(const RawServer& server)
{
    const ServerAnswer answer = server.Run(AllDaysStatement);
    std::vector<std::string> all;
    for (int row = 0; row < answer.RowCount(); ++row)
        all.emplace_back(answer.TextAt(row, 0));
    return all;
}

/// The statement of the day, kept on the server under the name "day".
class RawSelection {
public:
    explicit RawSelection(const RawServer& server) : server_(server), statement_(family::DayStatement())
    {
        server_.Prepare("day", statement_.text);
    }

    Read Run(const std::vector<std::string>& days) const
    {
        Read read;
        for (const std::string& day : days)
            Add(server_.RunPrepared("day", ValuesFor(day)), read);
        return read;
    }

private:
    /// The day and no other condition.
    std::vector<std::optional<std::string>> ValuesFor(const std::string& day) const
    {
        std::vector<std::optional<std::string>> values;
        for (const std::string& name : statement_.names)
            values.emplace_back(name == "data" ? day : "0");
        return values;
    }

    static void Add(const ServerAnswer& answer, Read& read)
    {
        const int columns = answer.ColumnCount();
        read.rows += answer.RowCount();
        for (int row = 0; row < answer.RowCount(); ++row) {
            for (int column = 0; column < columns; ++column)
                read.checksum += answer.IsNumber(column)
                    ? answer.NumberAt(row, column)
                    : static_cast<std::int64_t>(answer.TextAt(row, column).size());
        }
    }

    const RawServer& server_;
    const NumberedStatement statement_;
};

void Measure(const std::string& address)
{
    const RawServer server(address);
    const RawSelection selection(server);
    const std::vector<std::string> days = SpreadDays(AllDays(server));
    DataHost host(address);
    family::Agenda agenda(host);

    const Read all = selection.Run(days);
    if (SelectByName(agenda, days, "") != all.rows)
        throw std::runtime_error("the two do not select the same rows");
    std::int64_t sum = 0;
    const auto byName = [&] { sum += SelectByName(agenda, days, ""); };
    const auto raw = [&] { sum += selection.Run(days).checksum; };
    PrintLine("(j) day selection on a server", Alternate(Rounds, byName, raw), "ms", Limit);
    PrintNote("(j) " + std::to_string(all.rows) + " rows on 10 days; checksum " + std::to_string(all.checksum)
              + (sum == 0 ? " (none)" : ""));
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "usage: bench_server_selection ADDRESS" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1]);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_server_selection: " << failure.what() << std::endl;
        return 1;
    }
}
