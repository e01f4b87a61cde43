#pragma once

#include "family/data/engine/migration.hpp"
#include "tools/agenda-data/command.hpp"

#include <string>

namespace kova::data {

/// Writes what a migration has done and where the copy of before lies, and to `error` which rows the new
/// schema would not take any more.
void TellMigration(const std::string& source, const family::MigrationReport& report, std::ostream& output,
                   std::ostream& error);

/// For a command that is about to write: brings an older file up to date and tells that in `error`, since
/// nobody has asked for it. An older server stays as it is, and refuses what is written (OpenDatabase).
void BringFileUpToDate(const std::string& source, std::ostream& error);

} // namespace kova::data
