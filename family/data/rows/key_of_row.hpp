#pragma once

#include "family/data/engine/key.hpp"

#include <type_traits>

namespace kova::family {

/// The key of a row: the first of its columns.
template <class Row> Key& KeyOfRow(Row& row)
{
    Key* key = nullptr;
    row.Columns([&](const char*, auto& field) {
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, Key>) {
            if (!key)
                key = &field;
        }
    });
    return *key;
}

} // namespace kova::family
