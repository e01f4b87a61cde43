#pragma once

#include "family/data/engine/database.hpp"

namespace kova::conformance {

/// Writes the shop of shop.hpp into an empty database of the newest schema, of whatever engine.
void WriteShop(family::Database& database);

} // namespace kova::conformance
