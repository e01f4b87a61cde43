#pragma once

#include "family/data/engine/migration.hpp"

#include <string>

namespace kova::family {

/// Name of the copy that is made of a file before it is brought to that version; each attempt whose copy
/// stays makes the next one: "PATH.antes-da-versao-N.bak", "PATH.antes-da-versao-N-2.bak"...
std::string BackupName(const std::string& path, int version, int attempt = 1);

/// Brings an SQLite file to the newest version, all or nothing, after a copy that was tried. Nobody writes
/// between the copy and the end; a second program waits, and finds nothing to do. Fails with a
/// DatabaseFailure.
MigrationReport MigrateFile(const std::string& path, Migrations migrations);

} // namespace kova::family
