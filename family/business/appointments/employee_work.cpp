#include "family/business/appointments/employee_work.hpp"

#include <algorithm>

namespace kova::family {

namespace {

constexpr Long DaysOfWeek = 7;

} // namespace

EmployeeWork::EmployeeWork(Database& database, const BookedEmployee& employee,
                           std::optional<long long> changes)
    : database_(database), employee_(employee.code), nickname_(employee.nickname), changes_(changes)
{
}

const WorkTables& EmployeeWork::Tables()
{
    if (!tables_)
        tables_ = FindWorkTables(database_, changes_);
    return *tables_;
}

std::optional<Date> EmployeeWork::FirstDayNotCovered(const TimeSpan& span)
{
    const WorkTables& tables = Tables();
    const auto own = tables.employees.find(employee_);
    for (Date date = span.start.date; date <= span.end.date; date = AddDays(date, 1)) {
        const PartOfDay part = PartOn(date, span);
        const int weekday = Weekday(date);
        const bool open = !tables.shop.HasAnyOn(weekday) || tables.shop.Cover(weekday, part);
        if (!open || (own != tables.employees.end() && !own->second.Cover(weekday, part)))
            return date;
    }
    return std::nullopt;
}

std::optional<EmployeeWork::Away> EmployeeWork::FirstAway(const TimeSpan& span)
{
    constexpr Key Everybody = 0;
    std::optional<Away> first;
    for (const Key who : {employee_, Everybody}) {
        const auto absences = Tables().absences.find(who);
        if (absences == Tables().absences.end())
            continue;
        for (const Absence& absence : absences->second) {
            const DateTime moment = std::max(absence.from, span.start);
            const bool overlaps = absence.from < span.end && span.start < absence.until;
            if (overlaps && (!first || moment < first->moment))
                first = {moment, &absence};
        }
    }
    return first;
}

bool EmployeeWork::IsAtWork(const TimeSpan& span) { return !FirstDayNotCovered(span) && !FirstAway(span); }

Text EmployeeWork::NotAtWorkText(Date date) const
{
    return nickname_ + " não trabalha nesse horário em " + FormatDate(date) + ".";
}

Text EmployeeWork::ObjectionTo(const TimeSpan& span)
{
    if (const auto date = FirstDayNotCovered(span))
        return NotAtWorkText(*date);
    if (const auto away = FirstAway(span))
        return nickname_ + " está ausente em " + FormatDate(away->moment.date) + " (" + away->absence->reason
            + ").";
    return {};
}

bool EmployeeWork::WorksOnSomeOpenDay(const TimeSpan& span)
{
    for (Long days = 0; days < DaysOfWeek; ++days) {
        const TimeSpan shifted = ShiftedByDays(span, days);
        if (IsOpenOn(shifted.start.date) && !FirstDayNotCovered(shifted))
            return true;
    }
    return false;
}

} // namespace kova::family
