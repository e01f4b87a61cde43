#pragma once

namespace kova::family {

/// Identifies a row of a table; 0 is none.
using Key = long long;

} // namespace kova::family
