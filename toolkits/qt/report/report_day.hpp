#pragma once

#include "agenda/contracts/date_time.hpp"

namespace kova {
class RecordSet;
}

namespace kova::qt {

/// The day that a report is about: the first date of its first record, else `today`. Leaves the records on
/// the first one. Never fails.
Date DayOfReport(RecordSet* records, Date today);

} // namespace kova::qt
