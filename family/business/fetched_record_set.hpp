#pragma once

#include "family/business/kept_record_set.hpp"
#include "family/data/selections/rows_by_code.hpp"

#include <memory>

namespace kova::family {

/// Rows that were found by their codes, under the names that the screens read. Which they are and their order
/// is fixed from the beginning; they are fetched by the hundred, the first ones at once, the others when the
/// cursor first comes to one of them, and stay as they were then. Reading a field of a row that is still to
/// be fetched can fail as Database::With.
template <template <class> class RowOf> class FetchedRecordSet : public PagedRecordSet {
public:
    using FieldList = std::span<const KeptField<RowOf>>;
    /// Adds a row for each of the codes, in their order.
    using Fetch = void (*)(Database& database, std::span<const Key> codes, KeptRows<RowOf>& kept);

    /// `fields` must outlive the record set. Fails as Database::With.
    FetchedRecordSet(FieldList fields, Fetch fetch, std::shared_ptr<Database> database,
                     std::vector<Key> codes)
        : PagedRecordSet(NamesOf<RowOf>(fields)),
          fields_(fields),
          fetch_(fetch),
          database_(std::move(database)),
          codes_(std::move(codes)),
          starts_((codes_.size() + MostRowsAtOnce - 1) / MostRowsAtOnce, NotFetched)
    {
        if (!codes_.empty())
            RowAt(0);
    }

protected:
    Long RowCount() const override { return static_cast<Long>(codes_.size()); }
    Value CellAt(Long row, int field) const override
    {
        return fields_[static_cast<std::size_t>(field)].read(RowAt(static_cast<std::size_t>(row)));
    }

private:
    static constexpr std::size_t NotFetched = static_cast<std::size_t>(-1);

    const RowOf<std::string_view>& RowAt(std::size_t row) const
    {
        std::size_t& start = starts_[row / MostRowsAtOnce];
        if (start == NotFetched)
            start = FetchHundred(row - row % MostRowsAtOnce);
        return fetched_.rows[start + row % MostRowsAtOnce];
    }

    /// Answers where the rows from `first` on now lie.
    std::size_t FetchHundred(std::size_t first) const
    {
        const std::size_t start = fetched_.rows.size();
        const std::size_t count = std::min(MostRowsAtOnce, codes_.size() - first);
        fetch_(*database_, std::span(codes_).subspan(first, count), fetched_);
        return start;
    }

    FieldList fields_;
    Fetch fetch_;
    std::shared_ptr<Database> database_;
    std::vector<Key> codes_;
    /// Where each hundred lies among the rows fetched.
    mutable std::vector<std::size_t> starts_;
    mutable KeptRows<RowOf> fetched_;
};

} // namespace kova::family
