#pragma once

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audited_row.hpp"

namespace kova::family::registers {

/// Why a row is not taken back whose columns are others than the audit has kept of the write.
inline constexpr const char* StandsOtherwise =
    "Não está mais como ficou então: outro programa o mudou. Confira-o e mude-o à mão.";

template <class Row> bool IsSameRow(const Row& one, const Row& other)
{
    return ValuesOf<Row>(one).Line() == ValuesOf<Row>(other).Line();
}

/// Whether the row has all the columns that the audit has kept of a change.
template <class Row> bool StandsAs(const Row& row, const AuditedColumns& after)
{
    Row written = row;
    return TakeColumns(after, written) && IsSameRow<Row>(written, row);
}

/// Whether the row is as the audit has kept it when it was new.
template <class Row> bool StandsAsAdded(const Row& row, const AuditedColumns& after)
{
    Row written = row;
    return TakeRow(after, written) && IsSameRow<Row>(written, row);
}

} // namespace kova::family::registers
