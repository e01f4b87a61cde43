#pragma once

#include "agenda/contracts/date_time.hpp"

namespace kova::family {

/// From its start up to, and without, its end.
struct TimeSpan {
    DateTime start, end;

    bool Contains(const DateTime& moment) const { return start <= moment && moment < end; }
    bool Overlaps(const TimeSpan& other) const { return start < other.end && other.start < end; }
};

/// The same hours on other days.
inline TimeSpan ShiftedByDays(const TimeSpan& span, Long days)
{
    return {{AddDays(span.start.date, days), span.start.time}, {AddDays(span.end.date, days), span.end.time}};
}

} // namespace kova::family
