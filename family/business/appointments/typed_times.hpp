#pragma once

#include "family/business/appointments/write_answer.hpp"
#include "family/business/time_span.hpp"

#include <optional>
#include <vector>

namespace kova::family {

/// A refusal of a write; nothing where there is no objection.
using Refusal = std::optional<WriteAnswer>;

/// Start and end of an appointment as they were typed, "dd/mm/yyyy" and "hh:mm".
struct TypedTimes {
    Text startDate, startTime, endDate, endTime;
    /// Whether an end before its start on the same date is one on the next day.
    bool mayRunPastMidnight = false;

    /// Reads them into `span`. Refused, with the first field at fault, where one is blank or impossible or
    /// lies outside 01/01/1900 to 31/12/2999, and where the end is not after the start.
    Refusal ReadInto(TimeSpan& span) const;
};

/// The rows of a table of picked dates: start date, start time, end date and end time in the first dimension.
/// Rows without any content are left out; a null table has none. Fails with 9 where the first dimension is
/// too short.
std::vector<TypedTimes> PickedTimes(const ArrayRef& table);

/// A span that was computed: refused outside the same limits.
Refusal CheckLimits(const TimeSpan& span);

/// The same refusal with a date that tells which appointment it is about.
Refusal Naming(Refusal refusal, const Text& date);

} // namespace kova::family
