#pragma once

#include <soci/soci.h>

#include <utility>

namespace kova::family {

/// A bound variable of a column that can be Null; Null until a value is assigned.
template <class T> struct Nullable {
    T value{};
    soci::indicator state = soci::i_null;

    Nullable() = default;
    Nullable(T given) : value(std::move(given)), state(soci::i_ok) { }

    bool IsNull() const { return state == soci::i_null; }
    /// While it is Null, `value` is what stood there before.
    T ValueOr(T other) const { return IsNull() ? other : value; }
};

} // namespace kova::family
