#pragma once

#include "family/data/audit/audit.hpp"
#include "system/user_account.hpp"

#include <string>

/// Lines of what is done with a shop beyond the writing of its rows. Each is written in the transaction that
/// is open, or in one of its own; all fail as Database::With.
namespace kova::family {

class Database;

/// In the place of a table: its key is a customer's code where what was taken out is of one, else 0.
inline constexpr const char* ExportsTable = "exportacao";
inline constexpr const char* PrintsTable = "impressao";
inline constexpr const char* RestoresTable = "restauracao";

/// Data of the shop go into a file.
void AuditExport(Database& database, const Author& author, Key customer, const AuditValues& what);
/// Data of customers go onto paper, or into a file instead of it.
void AuditPrint(Database& database, const Author& author, Key customer, const AuditValues& what);

/// The shop is there again from a copy. A schema without the audit's chain links the line when it gets it.
void AuditRestore(Database& database, const Author& author, const std::string& copy);
/// The schema has become another; `copy` is the copy from before. The author is the computer's user, and the
/// moment the engine's.
void AuditMigration(Database& database, int before, int after, const std::string& copy);

/// The full name of an account, or the short one where it has none; "Recepção" where there is no account, or
/// one without a name.
std::string NameOfAccount(const system::UserAccount& account);

} // namespace kova::family
