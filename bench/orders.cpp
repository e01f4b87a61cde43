#include "bench/orders.hpp"

#include "family/data/engine/iso_text.hpp"

#include <cstdio>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int FirstHour = 8, HoursOfDay = 10;

std::string Hour(int hour)
{
    char text[16];
    std::snprintf(text, sizeof text, "%02d:00", hour);
    return text;
}

Date LastDay(const RawServer& server)
{
    const ServerAnswer last = server.Run("select max(data_final) from agendamento");
    return family::ReadIsoMoment(last.TextAt(0, 0), "00:00").date;
}

std::set<std::string> HolidaysOf(const RawServer& server)
{
    const ServerAnswer days = server.Run(
        "select coalesce(data, lpad(mes::text, 2, '0') || '-' || lpad(dia::text, 2, '0')) from feriado");
    std::set<std::string> holidays;
    for (int row = 0; row < days.RowCount(); ++row)
        holidays.emplace(days.TextAt(row, 0));
    return holidays;
}

} // namespace

OrderBook::OrderBook(const RawServer& server, int desks)
    : holidays_(HolidaysOf(server)), workingDays_{LastDay(server)}, taken_(static_cast<std::size_t>(desks))
{
    const ServerAnswer employees = server.Run(
        "select codigo from funcionario where situacao = 1 order by codigo limit " + std::to_string(desks));
    for (int row = 0; row < employees.RowCount(); ++row)
        employees_.push_back(employees.NumberAt(row, 0));
    const ServerAnswer owners = server.Run(
        "select n.codigo_do_cliente, n.codigo from animal n join cliente c on c.codigo = n.codigo_do_cliente"
        " where c.situacao = 1 order by n.codigo");
    for (int row = 0; row < owners.RowCount(); ++row)
        owners_.push_back({owners.NumberAt(row, 0), owners.NumberAt(row, 1)});
    if (employees_.size() < taken_.size() || owners_.size() < taken_.size())
        throw std::runtime_error("the shop is too small");
}

Date OrderBook::WorkingDay(std::size_t number)
{
    constexpr int Sunday = 1;
    while (workingDays_.size() <= number) {
        Date day = workingDays_.back();
        std::string iso;
        do {
            day = AddDays(day, 1);
            iso = family::IsoDate(day);
        } while (Weekday(day) == Sunday || holidays_.contains(iso) || holidays_.contains(iso.substr(5)));
        workingDays_.push_back(day);
    }
    return workingDays_[number];
}

Order OrderBook::Next(int desk)
{
    const auto at = static_cast<std::size_t>(desk);
    const int number = taken_[at]++;
    const std::size_t share = owners_.size() / taken_.size();
    const Owner& owner = owners_[at * share + static_cast<std::size_t>(number) % share];
    const int hour = FirstHour + number % HoursOfDay;
    return {owner.customer, owner.animal,
            employees_[at], WorkingDay(1 + static_cast<std::size_t>(number / HoursOfDay)),
            Hour(hour),     Hour(hour + 1)};
}

std::vector<Order> OrderBook::Take(int desk, int count)
{
    std::vector<Order> orders;
    for (int i = 0; i < count; ++i)
        orders.push_back(Next(desk));
    return orders;
}

} // namespace kova::bench
