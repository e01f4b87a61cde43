#pragma once

#include "family/data/database.hpp"
#include "family/data/migrations/migrations.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kova::family {

/// Why the data source cannot be opened, in Portuguese, with its path and what to do; nothing where it
/// can. Looks only; changes nothing.
std::optional<std::string> CheckDataSource(const std::string& path,
                                           Migrations migrations = CurrentMigrations());

/// Opens an existing database. One of an older schema is first copied to
/// "PATH.antes-da-versao-N.bak" and then brought to the newest version, all or nothing. Fails with the
/// text of CheckDataSource, or with what the engine reports.
std::shared_ptr<Database> OpenDatabase(const std::string& path, Migrations migrations = CurrentMigrations());

/// Opens an existing database, of this schema or an older one, without leave to write. Fails with the
/// text of CheckDataSource.
std::unique_ptr<Database> OpenForReading(const std::string& path);

/// Makes a database with the newest schema and what `fill` writes, and puts it at `path` when it is
/// complete: whatever fails or is killed before leaves no file there. Fails where `path` already exists
/// or its folder cannot be written.
void CreateDatabase(const std::string& path, const std::function<void(Database&)>& fill);

/// Name of the copy made before a migration to that version.
std::string BackupName(const std::string& path, int version);

} // namespace kova::family
