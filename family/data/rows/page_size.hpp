#pragma once

#include <cstddef>

namespace kova::family {

/// The rows that one statement hands over at most where a table of any length is gone through. A server sends
/// all rows of a statement at once, and they are held until the last of them is read.
inline constexpr std::size_t PageSize = 1000;

} // namespace kova::family
