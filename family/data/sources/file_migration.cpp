#include "family/data/sources/file_migration.hpp"

#include "family/data/audit/audit_events.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/file_connection.hpp"
#include "family/data/sources/online_copy.hpp"
#include "family/data/sources/trial_restore.hpp"
#include "system/path_text.hpp"

namespace kova::family {

namespace {

bool IsTaken(const std::string& path)
{
    std::error_code unreadable;
    return std::filesystem::exists(std::filesystem::symlink_status(system::PathOf(path), unreadable));
}

std::string FreeBackupName(const std::string& path, int version)
{
    for (int attempt = 1;; ++attempt) {
        std::string name = BackupName(path, version, attempt);
        // What an attempt that was cut off has left of it.
        RemoveAbandoned(name);
        if (!IsTaken(name))
            return name;
    }
}

/// Read over a connection of its own, as others read: the one that is going to write has written nothing yet.
std::string CopyBefore(const std::string& path, int version)
{
    UnfinishedFile copy(FreeBackupName(path, version));
    const std::vector<TableCount> rows = CopyOnline(*ConnectForReading(path), copy.Name(), {});
    TryCopy(copy.Name(), rows);
    copy.Finish();
    return copy.Path();
}

MigrationReport MigrateIn(Database& database, Migrations migrations)
{
    WriteTransaction transaction(database, WriteTransaction::Of::Schema);
    const int version = StoredVersion(database.Session());
    if (const auto refusal = RefusalOfNewer(database.Path(), version, migrations))
        throw DatabaseFailure(*refusal);
    MigrationReport report{version, NewestVersion(migrations), {}};
    if (report.before == report.after)
        return report;
    report.copy = CopyBefore(database.Path(), report.after);
    RunMissing(database.Session(), database.GetDialect(), migrations);
    AuditMigration(database, report.before, report.after, report.copy);
    transaction.Commit();
    return report;
}

} // namespace

std::string BackupName(const std::string& path, int version, int attempt)
{
    return path + ".antes-da-versao-" + std::to_string(version)
        + (attempt == 1 ? "" : "-" + std::to_string(attempt)) + ".bak";
}

MigrationReport MigrateFile(const std::string& path, Migrations migrations)
{
    const std::unique_ptr<Database> database = ConnectForSchemaChange(path);
    try {
        return MigrateIn(*database, migrations);
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(path, cause);
    }
}

} // namespace kova::family
