#include "bench/measured_days.hpp"

#include "agenda/contracts/support/paged_record_set.hpp"

#include <stdexcept>

namespace kova::bench {

namespace {

/// "dd/mm/yyyy"
std::string ShownDay(const std::string& day)
{
    return day.substr(8, 2) + "/" + day.substr(5, 2) + "/" + day.substr(0, 4);
}

} // namespace

std::vector<std::string> SpreadDays(const std::vector<std::string>& all)
{
    constexpr std::size_t MeasuredDays = 10;
    if (all.size() < MeasuredDays)
        throw std::runtime_error("the database has too few days");
    std::vector<std::string> spread;
    for (std::size_t i = 0; i < MeasuredDays; ++i)
        spread.push_back(all[(2 * i + 1) * all.size() / (2 * MeasuredDays)]);
    return spread;
}

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

} // namespace kova::bench
