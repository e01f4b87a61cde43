#pragma once

#include "family/data/engine/migration.hpp"

namespace kova::family {

/// Every step from an empty database to the schema this program works on, in order.
Migrations CurrentMigrations();

} // namespace kova::family
