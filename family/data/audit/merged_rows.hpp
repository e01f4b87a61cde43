#pragma once

#include "family/data/engine/key.hpp"

#include <set>
#include <vector>

namespace kova::family {

class Database;

/// The key under which a row goes on that has become one with another, and that one perhaps with a third;
/// the key itself where it has not. Fails as FindAuditLines.
Key GoesOnAs(Database& database, const char* table, Key key);

/// The keys of all rows that have gone into that one, also by way of others; the audit still has lines of
/// theirs. Fails as FindAuditLines.
std::vector<Key> HaveGoneInto(Database& database, const char* table, Key key);

/// The keys of all rows of the table that a line about such a union is of. Goes through the whole audit.
/// Fails as Database::With.
std::set<Key> RowsOfUnions(Database& database, const char* table);

} // namespace kova::family
