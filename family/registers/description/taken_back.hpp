#pragma once

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audited_row.hpp"

namespace kova::family::registers {

/// Why a row is not taken back whose columns are others than the audit has kept of the write.
inline constexpr const char* StandsOtherwise =
    "Não está mais como ficou então: outro programa o mudou. Confira-o e mude-o à mão.";

/// Whether the row has all the columns that the audit has kept of a write.
template <class Row> bool StandsAs(const Row& row, const AuditedColumns& after)
{
    Row written = row;
    return TakeColumns(after, written) && ValuesOf<Row>(written).Line() == ValuesOf<Row>(row).Line();
}

} // namespace kova::family::registers
