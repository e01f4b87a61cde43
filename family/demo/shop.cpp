#include "family/demo/shop.hpp"

#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/national_holidays.hpp"

#include <algorithm>

namespace kova::family {

namespace {

constexpr std::uint64_t Seed = 20081;
constexpr int DaysAround = 60;
constexpr int MeasuredDays = 2500;

/// What the state and the town add to the national holidays.
void WriteHolidays(Database& database)
{
    std::vector<HolidayRow> holidays = NationalHolidays(FirstHolidayYear, LastHolidayYear);
    holidays.push_back({0, "Revolução Constitucionalista", 9, 7, {}});
    holidays.push_back({0, "Aniversário de Vale Sereno", 19, 8, {}});
    Key code = 0;
    for (HolidayRow& holiday : holidays) {
        holiday.codigo = ++code;
        Insert(database, holiday);
    }
}

void Fill(Database& database, const ShopPlan& plan)
{
    Random random(Seed);
    const ShopRegisters registers = WriteRegisters(database, plan.employees, random);
    WriteHolidays(database);
    const std::vector<ShopCustomer> customers = WriteCustomers(database, registers, plan.customers, random);
    WriteAppointments(database, registers, customers, plan.appointments, random);
}

} // namespace

ShopPlan DemonstrationPlan(Date date)
{
    ShopPlan plan;
    plan.appointments = {date, AddDays(date, -DaysAround), 2 * DaysAround + 1, 0, 40};
    return plan;
}

ShopPlan MeasuringPlan(Date date, int customers, long long appointments)
{
    if (customers < 1 || appointments < 1)
        throw Failure(FailureNumber::InvalidArgument);
    const int perDay = static_cast<int>(std::max<long long>(40, appointments / MeasuredDays));
    const Long days = static_cast<Long>(appointments / perDay) + 1;
    ShopPlan plan;
    plan.employees = std::max(ShopPlan().employees, perDay / 6);
    plan.customers = customers;
    plan.appointments = {date, AddDays(date, -days / 2), 0, appointments, perDay};
    return plan;
}

void CreateShop(const std::string& path, const ShopPlan& plan)
{
    CreateDatabase(path, [&](Database& database) { Fill(database, plan); });
}

} // namespace kova::family
