#pragma once

#include "family/data/audit/audit_lines.hpp"
#include "family/data/engine/key.hpp"

#include <set>
#include <span>
#include <string>

namespace kova::family {
class Database;
}

namespace kova::family::registers {

/// Rows of other tables that refer to a row, in words: "3 agendamentos, 1 pacote"; empty where there are
/// none. Those of the table `own` belong to the row itself and do not count. Fails with a DatabaseFailure.
std::string UsersOf(Database& database, const char* table, Key key, const char* own = "");

/// Those of the rows that others refer to so. Fails with a DatabaseFailure.
std::set<Key> UsedAmong(Database& database, const char* table, std::span<const Key> keys,
                        const char* own = "");

/// Why a row of the table cannot have its former columns again: one of them, where it differs from what is
/// there now, refers to a row that is gone. Empty where none does. Fails with a DatabaseFailure.
std::string MissingTarget(Database& database, const char* table, const AuditedColumns& former,
                          const AuditedColumns& now);

/// Whether an appointment has that key in the column. Fails with a DatabaseFailure.
bool IsBooked(Database& database, const char* column, Key key);

/// Appointments with that key in the column that are booked and begin at that moment or later
/// ("yyyy-mm-dd hh:mm:ss"). Fails with a DatabaseFailure.
long long BookedSince(Database& database, const char* column, Key key, const std::string& moment);

/// Deletes the rows of a table that have the key, or one of several, in that column. Fails with a
/// DatabaseFailure.
void DeleteWhere(Database& database, const char* table, const std::string& column, Key key);
void DeleteWhere(Database& database, const char* table, const std::string& column, std::span<const Key> keys);

} // namespace kova::family::registers
