#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/rows/waiting_rows.hpp"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kova::family {

class Database;

/// Who waits, and for what: any of the services, with any of the employees, or with anybody where none is
/// named.
struct WaitingEntry {
    WaitingRow row;
    std::set<Key> services, employees;
};

/// The one with that key; nothing where there is none. They fail with a DatabaseFailure.
std::optional<WaitingEntry> FindWaiting(Database& database, Key code);
/// Locked until the end of the transaction that is open.
std::optional<WaitingEntry> LockWaiting(Database& database, Key code);

/// Those that are open and for which the day "yyyy-mm-dd", or one behind it, would do; who has waited longest
/// comes first.
std::vector<WaitingEntry> FindOpenWaiting(Database& database, const std::string& day);

/// All that a customer has ever waited for, by their keys.
std::vector<WaitingRow> FindWaitingOf(Database& database, Key customer);
/// The same for animals.
std::vector<WaitingRow> FindWaitingFor(Database& database, const std::set<Key>& animals);

/// Write one in the transaction that is open, with who and when on the row and every row that changes in the
/// audit. Answers the key that the engine gave.
Key AddWaiting(Database& database, WaitingEntry entry, const Author& author);
/// `after` has the key of `before`; what `before` says about its inclusion stays, and its version goes up by
/// one. Answers the row as it is then.
WaitingRow ReplaceWaiting(Database& database, const WaitingEntry& before, WaitingEntry after,
                          const Author& author);
/// The same of what stands on the entry's own row.
WaitingRow ReplaceWaiting(Database& database, const WaitingRow& before, WaitingRow after,
                          const Author& author);

} // namespace kova::family
