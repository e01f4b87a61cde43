#pragma once

#include "agenda/contracts/support/paged_record_set.hpp"
#include "family/data/selections/day_selection.hpp"

namespace kova::family {

/// A day's appointments with the 37 fields that the screens read. A page beyond the last is taken as the
/// last, one below the first as the first.
std::shared_ptr<PagedRecordSet> DayRecordSet(DayRows day);

} // namespace kova::family
