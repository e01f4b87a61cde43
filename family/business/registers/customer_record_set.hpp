#pragma once

#include "agenda/contracts/support/paged_record_set.hpp"
#include "family/data/selections/customer_selection.hpp"

#include <memory>

namespace kova::family {

/// Customers with the fields that lookups and picker read. Which they are and their order is fixed from the
/// beginning; the first rows are fetched at once, every other when the cursor first comes to it, and stay as
/// they were then. Reading a field of a row that is still to be fetched can fail as Database::With.
class CustomerRecordSet : public PagedRecordSet {
public:
    CustomerRecordSet(std::shared_ptr<Database> database, std::vector<Key> codes);

protected:
    Long RowCount() const override { return static_cast<Long>(codes_.size()); }
    Value CellAt(Long row, int field) const override;

private:
    static constexpr std::size_t NotFetched = static_cast<std::size_t>(-1);

    const FoundCustomerOf<std::string_view>& RowAt(std::size_t row) const;

    std::shared_ptr<Database> database_;
    std::vector<Key> codes_;
    /// Where each row stands among those fetched.
    mutable std::vector<std::size_t> places_;
    mutable KeptRows<FoundCustomerOf> fetched_;
};

} // namespace kova::family
