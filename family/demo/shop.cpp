#include "family/demo/shop.hpp"

#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/national_holidays.hpp"
#include "family/demo/fictional_shop.hpp"

#include <algorithm>

namespace kova::family {

namespace {

constexpr std::uint64_t Seed = 20081;
constexpr int DaysAround = 60;
constexpr int MeasuredDays = 2500;
/// Appointments a day: of a small shop, and of an employee who has much or as much as usual to do.
constexpr int UsualPerDay = 40, MostOfEmployee = 6, UsualOfEmployee = 4;

/// What the state, the town and the shop itself add to the national holidays.
void WriteHolidays(Database& database)
{
    std::vector<HolidayRow> holidays = NationalHolidays(FirstHolidayYear, LastHolidayYear);
    holidays.push_back({0, "Revolução Constitucionalista", 9, 7, {}});
    holidays.push_back({0, "Aniversário de Vale Sereno", 19, 8, {}});
    for (int year = FirstHolidayYear; year <= LastHolidayYear; ++year) {
        for (HolidayRow& day : UsualDaysOff(year))
            holidays.push_back(std::move(day));
    }
    Key code = 0;
    for (HolidayRow& holiday : holidays) {
        holiday.codigo = ++code;
        Insert(database, holiday);
    }
}

void Fill(Database& database, const ShopPlan& plan)
{
    Random random(Seed);
    MarkAsFictional(database);
    const ShopRegisters registers = WriteRegisters(database, plan.employees, random);
    WriteHolidays(database);
    const std::vector<ShopCustomer> customers = WriteCustomers(database, registers, plan.customers, random);
    WriteAppointments(database, registers, customers, plan.appointments, random);
}

ShopPlan PlanOf(Date date, int customers, long long appointments, int employees, int perDay)
{
    if (customers < 1 || appointments < 1)
        throw Failure(FailureNumber::InvalidArgument);
    const Long days = static_cast<Long>(appointments / perDay) + 1;
    ShopPlan plan;
    plan.employees = employees;
    plan.customers = customers;
    plan.appointments = {date, AddDays(date, -days / 2), 0, appointments, perDay};
    return plan;
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
    const int perDay = static_cast<int>(std::max<long long>(UsualPerDay, appointments / MeasuredDays));
    return PlanOf(date, customers, appointments, std::max(ShopPlan().employees, perDay / MostOfEmployee),
                  perDay);
}

ShopPlan MeasuringPlan(Date date, int customers, long long appointments, int employees)
{
    if (employees < FewestEmployees)
        throw Failure(FailureNumber::InvalidArgument);
    return PlanOf(date, customers, appointments, employees, employees * UsualOfEmployee);
}

void CreateShop(const std::string& path, const ShopPlan& plan)
{
    CreateDatabase(path, [&](Database& database) { Fill(database, plan); });
}

} // namespace kova::family
