#pragma once

#include "bench/floor_view.hpp"
#include "bench/raw_database.hpp"

#include <limits>
#include <vector>

namespace kova::bench {

/// Runs the statement that selects a day, with the parameters it was given, and takes from each row what the
/// floor's view shows, at most that many rows. Every row is stepped over.
std::vector<FloorRow> ReadDay(RawStatement& statement,
                              std::size_t rowsKept = std::numeric_limits<std::size_t>::max());

} // namespace kova::bench
