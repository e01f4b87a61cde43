#pragma once

#include "agenda/contracts/support/paged_record_set.hpp"
#include "family/data/rows/rows.hpp"

namespace kova::family::test {

/// Moves to the appointment of that number, which must be there.
void GoTo(RecordSet& records, Key number);

/// Writes into clsAgenda what a record form that was opened on the record would send when nothing is typed
/// into it. The user is not part of it.
void SetFromRecord(Component& agenda, const RecordSet& record);

} // namespace kova::family::test
