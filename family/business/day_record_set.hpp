#pragma once

#include "agenda/contracts/record_set.hpp"
#include "family/data/day_selection.hpp"

namespace kova::family {

/// A day's appointments with the 37 fields that the screens read. The rows stay as they were fetched; a
/// value is made when a field is read.
class DayRecordSet : public PagedRecordSet {
public:
    explicit DayRecordSet(DayRows day);

protected:
    Long RowCount() const override { return static_cast<Long>(day_.rows.size()); }
    Value CellAt(Long row, int field) const override;

private:
    DayRows day_;
};

} // namespace kova::family
