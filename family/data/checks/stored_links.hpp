#pragma once

#include "family/data/checks/chain_walk.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/long_work.hpp"

#include <functional>
#include <limits>

namespace kova::family {

/// Before the first of all links.
inline constexpr Key FirstPlace = std::numeric_limits<Key>::min();

/// Goes through the links of the audit's chain behind a place, in their order, each with its line, in pages.
/// Fails with soci::soci_error, or with Interrupted where a stop is asked for.
void VisitLinks(Database& database, Key behind, const LongWork& work,
                const std::function<void(const StoredLink&)>& visit);

} // namespace kova::family
