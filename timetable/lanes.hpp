#pragma once

#include "family/data/stores/work_tables.hpp"

#include <vector>

namespace kova::timetable {

/// Where a block lies among those that it overlaps: in which of how many lanes beside each other.
struct Lane {
    int at = 0, of = 1;

    bool operator==(const Lane&) const = default;
};

/// A lane for each part, which come by their beginning. Parts that overlap, also by others between them,
/// share their breadth evenly; each takes the first lane that is free.
std::vector<Lane> LanesOf(const std::vector<family::PartOfDay>& parts);

} // namespace kova::timetable
