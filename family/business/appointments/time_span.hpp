#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/engine/iso_text.hpp"

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

/// The same hours on other days.
inline TimeSpan ShiftedByDays(const TimeSpan& span, Long days)
{
    return {{AddDays(span.start.date, days), span.start.time}, {AddDays(span.end.date, days), span.end.time}};
}

} // namespace kova::family
