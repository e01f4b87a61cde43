#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/migration.hpp"

#include <functional>

namespace kova::family {

/// Makes the schema that those steps lead to in an empty database, and has `fill` write its rows, in the open
/// transaction. Rows are held to the schema's rules only behind it: those that are copied from elsewhere come
/// as they are. Fails with soci::soci_error.
void FillSchema(Database& database, Migrations migrations, const std::function<void(Database&)>& fill);

} // namespace kova::family
