#pragma once

#include <functional>

namespace kova::family {

class Database;

/// Runs `write` in a transaction, and keeps what it wrote where it answers true. It runs again, up to a few
/// times, where nothing of it can have remained: after a collision with another desk, and after the
/// connection broke. Where it broke during the commit, the mark that every transaction leaves tells on the
/// next connection whether the first one was kept; then `write` does not run again, and what it noted outside
/// stands. Fails with a DatabaseFailure, which says where it is not known whether anything was kept.
void WriteSafely(Database& database, const std::function<bool()>& write);

} // namespace kova::family
