#pragma once

#include "family/data/audit/author.hpp"

namespace kova::family {

class Database;

/// Fails with RightDenied where the author may not change an appointment's status from the one to the other:
/// to cancelled takes the right to cancel, to any other that to change appointments, and away from a
/// generated pre-sale also that to undo it. Fails as RequireRight.
void RequireRightToStatus(Database& database, const Author& author, int from, int to);

} // namespace kova::family
