#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/migration.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kova::family {

/// A data source is the path of an SQLite file, or the address of a database of a PostgreSQL server as its
/// client library takes it, "postgresql://...", without a password.

/// Whether anything stands at that path; on a server, whether the agenda's tables are there.
bool DataSourceExists(const std::string& path);

/// Why the data source cannot be opened, in Portuguese, with its path and what to do; nothing where it
/// can. Looks only; changes nothing.
std::optional<std::string> CheckDataSource(const std::string& path,
                                           Migrations migrations = CurrentMigrations());

/// Opens an existing database. One of an older schema is brought to the newest version, all or nothing; a
/// file is copied to "PATH.antes-da-versao-N.bak" before. Fails with the text of CheckDataSource, or with
/// what the engine reports.
std::shared_ptr<Database> OpenDatabase(const std::string& path, Migrations migrations = CurrentMigrations());

/// The same for one write that takes as long as it takes: a server does not end it.
std::shared_ptr<Database> OpenForLongWork(const std::string& path);

/// Opens an existing database, of this schema or an older one, without leave to write. Fails with the
/// text of CheckDataSource.
std::unique_ptr<Database> OpenForReading(const std::string& path);

/// Makes a database with the newest schema and what `fill` writes. A file is put at `path` when it is
/// complete; on a server all comes in one transaction: whatever fails or is killed before leaves nothing
/// there. Fails where DataSourceExists or it cannot be written; a server's database must exist.
void CreateDatabase(const std::string& path, const std::function<void(Database&)>& fill);

/// To be called after rows were written with keys of the caller's: new rows are numbered on behind the
/// highest. `fill` above need not.
void NumberOn(Database& database);

/// Name of the copy made before a migration to that version.
std::string BackupName(const std::string& path, int version);

} // namespace kova::family
