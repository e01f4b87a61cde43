#pragma once

#include <string>

/// Somebody has to be able to administer the users of a shop that has some.
namespace kova::family {

class Database;

/// Whether somebody active has the right to, by the role, and a password to sign in with. Asked of what is
/// stored now. Fails with a DatabaseFailure.
bool HasAdministrator(Database& database);

/// Why what the transaction that is open has written cannot stay, as sentences: nobody administers the users
/// any more, or nobody ever did of those who have a role. `had` is HasAdministrator before. Empty where it
/// can. Fails with a DatabaseFailure.
std::string WhyNobodyAdministers(Database& database, bool had);

} // namespace kova::family
