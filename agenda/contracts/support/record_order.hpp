#pragma once

#include "agenda/contracts/value.hpp"

#include <functional>
#include <string_view>
#include <vector>

namespace kova {

/// One field of an order.
struct SortKey {
    int field = 0;
    bool descending = false;
};

/// Reads "FIELD [ASC|DESC], ..."; blanks alone are no order. `numberOf` fails where there is no such
/// field; anything else that cannot be read fails with 3001.
std::vector<SortKey> ParseOrder(std::string_view order,
                                const std::function<int(std::string_view name)>& numberOf);

/// The numbers of `rows` rows in the order of the keys; rows that compare equal stay in the order they
/// had. Each cell of a key is read once. Without keys the answer is empty.
std::vector<Long> SortedRows(const std::vector<SortKey>& keys, Long rows,
                             const std::function<Value(Long row, int field)>& cellAt);

} // namespace kova
