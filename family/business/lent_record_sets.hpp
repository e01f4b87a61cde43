#pragma once

#include "agenda/contracts/business_services.hpp"

namespace kova::family {

/// The same record set, counted until its last holder lets go of it. Its code lies in this library, so
/// whatever a component hands out keeps the library loaded, also when the component itself is gone.
RecordSetRef Lend(RecordSetRef records);

/// Counted record sets that somebody still holds.
long LentRecordSets();

} // namespace kova::family
