#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/migration.hpp"

#include <memory>
#include <string>

namespace kova::family {

/// The process's one connection to a data source, opened at the first request (OpenDatabase) and kept
/// open between short-lived components.
std::shared_ptr<Database> SharedDatabase(const std::string& path);

/// What was done to bring the data source up to date when that connection was opened; it is told once.
MigrationReport TakeMigrationReport(const std::string& path);

/// Whoever is at the desk may not see prices and costs: what the process shows of that data source is without
/// them from then on.
void HidePrices(const std::string& path, bool areHidden);
bool ArePricesHidden(const std::string& path);

/// Lets go of the kept connections; each closes when the last component that uses it ends.
void CloseSharedDatabases();

} // namespace kova::family
