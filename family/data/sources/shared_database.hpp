#pragma once

#include "family/data/engine/database.hpp"

#include <memory>
#include <string>

namespace kova::family {

/// The process's one connection to a data source, opened at the first request (OpenDatabase) and kept
/// open between short-lived components.
std::shared_ptr<Database> SharedDatabase(const std::string& path);

/// Lets go of the kept connections; each closes when the last component that uses it ends.
void CloseSharedDatabases();

} // namespace kova::family
