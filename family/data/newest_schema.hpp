#pragma once

#include "family/data/database.hpp"

namespace kova::family {

/// Fails with a DatabaseFailure where the connected database is of an older schema than this program's; the
/// text tells how to bring it up to date.
void RequireNewestSchema(Database& database);

} // namespace kova::family
