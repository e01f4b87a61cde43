#include "family/business/appointments/employee_room.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/data/stores/booked_times.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// What is loaded at once when the days asked for lie beyond those loaded.
constexpr Long DaysAhead = 31;

/// The first moment at which `limit` of them run while `span` does; they come by start.
std::optional<DateTime> FullMoment(const std::vector<TimeSpan>& overlapping, const TimeSpan& span,
                                   std::size_t limit)
{
    for (const TimeSpan& one : overlapping) {
        const DateTime moment = std::max(one.start, span.start);
        const auto running = std::count_if(overlapping.begin(), overlapping.end(),
                                           [&](const TimeSpan& other) { return other.Contains(moment); });
        if (static_cast<std::size_t>(running) >= limit)
            return moment;
    }
    return std::nullopt;
}

} // namespace

EmployeeRoom::EmployeeRoom(Database& database, const BookedEmployee& employee, Key except, Date from,
                           Date until, std::optional<long long> changesOfWorkTables)
    : database_(database),
      employee_(employee),
      work_(database, employee, changesOfWorkTables),
      except_(except),
      limit_(static_cast<std::size_t>(std::max(0, employee.limit))),
      from_(from)
{
    if (limit_ > 0)
        LoadUntil(until);
}

std::optional<TimeSpan> EmployeeRoom::ClashWith(const TimeSpan& span)
{
    if (limit_ == 0)
        return std::nullopt;
    if (span.end.date > *loadedUntil_)
        LoadUntil(AddDays(span.end.date, DaysAhead));
    std::vector<TimeSpan> overlapping;
    std::copy_if(booked_.begin(), booked_.end(), std::back_inserter(overlapping),
                 [&](const TimeSpan& booked) { return booked.Overlaps(span); });
    if (overlapping.size() < limit_)
        return std::nullopt;
    std::stable_sort(overlapping.begin(), overlapping.end(),
                     [](const TimeSpan& a, const TimeSpan& b) { return a.start < b.start; });
    const std::optional<DateTime> full = FullMoment(overlapping, span, limit_);
    if (!full)
        return std::nullopt;
    return *std::find_if(overlapping.begin(), overlapping.end(),
                         [&](const TimeSpan& booked) { return booked.Contains(*full); });
}

Text EmployeeRoom::ObjectionTo(const TimeSpan& span)
{
    if (Text objection = work_.ObjectionTo(span); !objection.empty())
        return objection;
    const std::optional<TimeSpan> clash = ClashWith(span);
    return clash ? RoomTakenText(employee_, *clash) : Text();
}

void EmployeeRoom::LoadUntil(Date until)
{
    const std::string after = loadedUntil_ ? IsoDate(*loadedUntil_) : std::string();
    for (const BookedTimeRow& row :
         FindBookedTimes(database_, {employee_.code, except_, IsoDate(from_), after, IsoDate(until)}))
        booked_.push_back(
            {ReadIsoMoment(row.startDate, row.startTime), ReadIsoMoment(row.endDate, row.endTime)});
    loadedUntil_ = until;
}

Text RoomTakenText(const BookedEmployee& employee, const TimeSpan& clash)
{
    return employee.nickname + " já tem agendamento das " + FormatTime(clash.start.time) + " às "
        + FormatTime(clash.end.time) + " em " + FormatDate(clash.start.date) + ".";
}

Text ObjectionToReturn(Database& database, Key employee, Key appointment, const TimeSpan& span)
{
    // With the counters of changes, as a booking looks them up.
    const BookingRegisters found = FindBookingRegisters(database, {.employee = employee});
    if (!found.employee)
        return {};
    return EmployeeRoom(database, *found.employee, appointment, span.start.date, span.end.date,
                        found.changesOfWorkTables)
        .ObjectionTo(span);
}

} // namespace kova::family
