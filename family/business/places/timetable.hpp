#pragma once

#include "family/business/time_span.hpp"
#include "family/data/engine/key.hpp"
#include "family/data/stores/day_appointments.hpp"

#include <string>
#include <vector>

namespace kova::family {

class Database;

/// Which days, and whose.
struct TimetableWish {
    Date from;
    /// At least 1.
    int days = 1;
    /// 0 is everybody who is active or has an appointment then.
    Key employee = 0;
};

/// Hours at which nobody is booked without a question or a refusal, and why, as a sentence without its end.
struct ClosedPart {
    PartOfDay part;
    std::string why;

    bool operator==(const ClosedPart& other) const
    {
        return part.from == other.part.from && part.until == other.part.until && why == other.why;
    }
};

/// One appointment of a day.
struct TimetableBlock {
    DayAppointmentRow row;
    /// From its real beginning to its real end.
    TimeSpan span;
    /// What it takes of the day; at least a minute.
    PartOfDay part;
};

/// One employee's day. Blocks come by their beginning, then the longer ones, then by number; closed parts by
/// their beginning, and do not overlap.
struct TimetableColumn {
    Date date;
    Key employee = 0;
    std::string nickname;
    std::vector<ClosedPart> closed;
    std::vector<TimetableBlock> blocks;
};

/// A column for each day of each employee: the days in their order, and within a day the employees by
/// nickname and code. Empty where there is no such employee. Fails as Database::With, and with 5 where the
/// wish is none.
std::vector<TimetableColumn> ReadTimetable(Database& database, const TimetableWish& wish);

} // namespace kova::family
