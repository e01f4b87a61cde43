#pragma once

#include "family/data/engine/long_work.hpp"
#include "family/data/engine/migration.hpp"

#include <optional>
#include <string>

namespace kova::family {

/// Brings a database to the newest version, all or nothing, after a copy that was tried. A file is copied
/// beside itself. A server is copied to `copy`, or to a new file in the working folder that is named after
/// the database; its desks wait meanwhile. A second program that does the same waits too. Fails with a
/// DatabaseFailure.
MigrationReport MigrateDatabase(const std::string& source, const std::optional<std::string>& copy,
                                Migrations migrations, const LongWork& work);

} // namespace kova::family
