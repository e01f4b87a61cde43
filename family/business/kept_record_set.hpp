#pragma once

#include "agenda/contracts/support/paged_record_set.hpp"
#include "family/data/rows/kept_rows.hpp"

#include <span>

namespace kova::family {

/// A field of a record set: its name, and its value in a row.
template <template <class> class RowOf> struct KeptField {
    const char* name;
    Value (*read)(const RowOf<std::string_view>& row);
};

template <template <class> class RowOf> std::vector<Text> NamesOf(std::span<const KeptField<RowOf>> fields)
{
    std::vector<Text> names;
    names.reserve(fields.size());
    for (const KeptField<RowOf>& field : fields)
        names.emplace_back(field.name);
    return names;
}

/// A selection's rows under the names that the screens read. The rows stay as they were fetched; a value is
/// made when a field is read.
template <template <class> class RowOf> class KeptRecordSet : public PagedRecordSet {
public:
    using FieldList = std::span<const KeptField<RowOf>>;

    /// `fields` must outlive the record set.
    KeptRecordSet(FieldList fields, KeptRows<RowOf> kept)
        : PagedRecordSet(NamesOf<RowOf>(fields)), fields_(fields), kept_(std::move(kept))
    {
    }

protected:
    Long RowCount() const override { return static_cast<Long>(kept_.rows.size()); }
    Value CellAt(Long row, int field) const override
    {
        return fields_[static_cast<std::size_t>(field)].read(kept_.rows[static_cast<std::size_t>(row)]);
    }

private:
    FieldList fields_;
    KeptRows<RowOf> kept_;
};

} // namespace kova::family
