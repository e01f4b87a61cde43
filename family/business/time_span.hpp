#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/stores/work_tables.hpp"

namespace kova::family {

/// From its start up to, and without, its end.
struct TimeSpan {
    DateTime start, end;

    bool operator==(const TimeSpan&) const = default;
    bool Contains(const DateTime& moment) const { return start <= moment && moment < end; }
    bool Overlaps(const TimeSpan& other) const { return start < other.end && other.start < end; }
};

/// Of kept dates "yyyy-mm-dd" and times "hh:mm".
inline TimeSpan ReadIsoSpan(std::string_view startDate, std::string_view startTime, std::string_view endDate,
                            std::string_view endTime)
{
    return {ReadIsoMoment(startDate, startTime), ReadIsoMoment(endDate, endTime)};
}

/// What a span takes of a day; empty where it is elsewhere, and on the last one where it ends at midnight.
inline PartOfDay PartOn(Date date, const TimeSpan& span)
{
    constexpr int MinutesOfDay = 24 * 60;
    const auto minutesOf = [](TimeOfDay time) { return 60 * time.hour + time.minute; };
    if (date < span.start.date || date > span.end.date)
        return {};
    return {date == span.start.date ? minutesOf(span.start.time) : 0,
            date == span.end.date ? minutesOf(span.end.time) : MinutesOfDay};
}

/// The same hours on other days.
inline TimeSpan ShiftedByDays(const TimeSpan& span, Long days)
{
    return {{AddDays(span.start.date, days), span.start.time}, {AddDays(span.end.date, days), span.end.time}};
}

} // namespace kova::family
