#pragma once

#include "family/data/engine/dialect.hpp"

#include <soci/soci.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kova::family {

class Database;

/// One step of the schema: the statements that lead from the version before to this one, and what is done to
/// the rows behind them where no statement can.
struct Migration {
    int version;
    std::vector<std::string> (*statements)(const Dialect& dialect);
    void (*work)(soci::session& session, const Dialect& dialect) = nullptr;
};

/// What bringing a database up to date has done.
struct MigrationReport {
    /// Versions of the schema; equal where nothing was missing.
    int before = 0, after = 0;
    /// The file that holds the database as it was before; "" where nothing was missing.
    std::string copy;
};

/// All steps from an empty database on, in order.
using Migrations = std::span<const Migration>;

/// The version the last step leads to.
int NewestVersion(Migrations migrations);

/// Version of the schema that a connection finds; 0 where there is none.
int StoredVersion(soci::session& session);
/// The same where the table of the version may be missing too. Fails with a soci::soci_error.
int VersionOf(Database& database);

/// Why a program that knows these steps must not touch a schema of that version; nothing where it may.
std::optional<std::string> RefusalOfNewer(const std::string& path, int version, Migrations migrations);

/// Why a program that works on a schema of the version `known` must not write where it finds that version;
/// nothing where it may.
std::optional<std::string> RefusalOfOther(const std::string& path, int version, int known);

/// Why a program must not work on a schema that is older than its own; the text tells how to bring it up to
/// date.
std::string RefusalOfOlder(const std::string& path, int version, int known);

/// Runs the steps that are missing, in one transaction: all of them or none. Two programs that come at
/// the same time wait for each other and the second finds nothing to do.
void Migrate(soci::session& session, const Dialect& dialect, Migrations migrations);

/// The same in the transaction that is open.
void RunMissing(soci::session& session, const Dialect& dialect, Migrations migrations);

} // namespace kova::family
