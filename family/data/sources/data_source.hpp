#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/migrations/current_migrations.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kova::family {

/// A data source is the path of an SQLite file, or the address of a database of a PostgreSQL server as its
/// client library takes it, "postgresql://...", without a password.

/// Whether anything stands at that path; on a server, whether the agenda's tables are there.
bool DataSourceExists(const std::string& path);

/// Why the data source cannot be opened for work, in Portuguese, with its path and what to do; nothing where
/// it can. Looks only; changes nothing.
std::optional<std::string> CheckDataSource(const std::string& path,
                                           Migrations migrations = CurrentMigrations());

/// Opens an existing database for work. A file of an older schema is brought to the newest version, all or
/// nothing, after a copy (file_migration.hpp); on a server, where others may still work on it, it is refused.
/// Fails with the text of CheckDataSource, or with what the engine reports. Writes fail from the moment that
/// another program changes the schema. `done` is told what was done to bring a file up to date.
std::shared_ptr<Database> OpenDatabase(const std::string& path, Migrations migrations = CurrentMigrations(),
                                       MigrationReport* done = nullptr);

/// The same for one write that takes as long as it takes: a server does not end it.
std::shared_ptr<Database> OpenForLongWork(const std::string& path);

/// Opens an existing database, of this schema or an older one, without leave to write; a file also where
/// nobody may write it. Fails with a DatabaseFailure.
std::unique_ptr<Database> OpenForReading(const std::string& path);

/// The same where it is of the newest schema. Fails with a DatabaseFailure also where it is of an older one,
/// which a reader must not change; the text tells how to bring it up to date.
std::unique_ptr<Database> OpenNewestForReading(const std::string& path);

/// Makes a database with the newest schema and what `fill` writes. A file is put at `path` when it is
/// complete; on a server all comes in one transaction: whatever fails or is killed before leaves nothing
/// there. Fails where DataSourceExists or it cannot be written; a server's database must exist.
void CreateDatabase(const std::string& path, const std::function<void(Database&)>& fill);

} // namespace kova::family
