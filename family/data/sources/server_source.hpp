#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/migration.hpp"

#include <functional>
#include <optional>

/// The data source as a database of a PostgreSQL server; see data_source.hpp for what each does.
namespace kova::family {

/// Whether the agenda's tables are there. False where the server cannot be asked.
bool ExistsOnServer(const std::string& address);
std::optional<std::string> CheckServerSource(const std::string& address, Migrations migrations);
std::shared_ptr<Database> OpenOnServer(const std::string& address, Migrations migrations);
std::shared_ptr<Database> OpenOnServerForLongWork(const std::string& address);
std::unique_ptr<Database> OpenOnServerForReading(const std::string& address);
void CreateOnServer(const std::string& address, const std::function<void(Database&)>& fill);

/// Brings the schema to the newest version, all or nothing. Where it is older, `prepare` runs before, with
/// the database's name on the server, and answers the name of the copy it has made; nobody writes from then
/// on, and a second program waits. Fails with a DatabaseFailure.
MigrationReport MigrateOnServer(const std::string& address, Migrations migrations,
                                const std::function<std::string(const std::string& name)>& prepare);

} // namespace kova::family
