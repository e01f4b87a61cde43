#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/rows/user_rows.hpp"

namespace kova::family {

class Database;

/// Writes what is kept of a password or a PIN, Null for none, with its line in the audit, and has the user
/// wait for no wrong try any more. In the transaction that is open, for a user whose row is there. Fails as
/// Database::With.
void WriteSecret(Database& database, Key user, Nullable<std::string> SecretsRow::*which,
                 const Nullable<std::string>& kept, const Author& author);

} // namespace kova::family
