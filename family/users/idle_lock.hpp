#pragma once

#include "family/data/audit/author.hpp"

#include <string>

/// After how many minutes without a hand at it each desk of the shop is locked; 0 is never.
namespace kova::family {

class Database;

inline constexpr int UsualIdleMinutes = 15;
/// A day.
inline constexpr int MostIdleMinutes = 24 * 60;

/// The usual ones where nobody has set others. Fails as Database::With.
int IdleMinutes(Database& database);

/// Sets them, for all desks, in a transaction of its own, with a line in the audit. Answers why not, as
/// sentences, where they are fewer than none or more than the most. Fails with RightDenied where the author
/// may not administer the users, and with a DatabaseFailure.
std::string SetIdleMinutes(Database& database, int minutes, const Author& author);

} // namespace kova::family
