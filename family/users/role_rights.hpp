#pragma once

#include "family/data/audit/author.hpp"
#include "family/users/rights.hpp"

#include <map>

namespace kova::family {

class Database;

/// The rights of each role that has any, by the roles' codes; those that this program does not know left out.
/// Fails as Database::With.
std::map<Key, Rights> RightsOfRoles(Database& database);

/// Has the role allow these and no others that this program knows, each with its line in the audit, in the
/// transaction that is open. Fails as Database::With.
void WriteRightsOf(Database& database, Key role, const Rights& rights, const Author& author);

} // namespace kova::family
