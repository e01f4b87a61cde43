#pragma once

#include "family/history/line_statement.hpp"

namespace kova::family {
class Database;
}

/// What has to be known before lines are selected. All of it fails as Database::With.
namespace kova::family::history {

Findings FindingsFor(Database& database, const Filter& filter);

/// The same for the archive, which has lines alone: what rows there are the shop knows.
Findings FindingsInArchive(Database& shop, Database& archive, const Filter& filter);

/// Everybody who has written a line, in the order of the engine.
std::vector<std::string> SelectWriters(Database& database);

} // namespace kova::family::history
