#include "family/data/copies/database_backup.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/audit/audit_events.hpp"
#include "family/data/copies/database_copy.hpp"
#include "family/data/engine/file_checks.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_connection.hpp"
#include "family/data/sources/online_copy.hpp"
#include "family/data/sources/told_reading.hpp"
#include "family/data/sources/trial_restore.hpp"
#include "system/path_text.hpp"
#include "system/whole_file.hpp"

namespace kova::family {

namespace {

namespace fs = std::filesystem;

/// Somebody has the file open, or had when it was last written: a part of it stands in the log.
bool HasLog(const std::string& file)
{
    std::error_code unreadable;
    return fs::exists(system::PathOf(file + "-wal"), unreadable);
}

void RequireFile(const std::string& file)
{
    std::error_code unreadable;
    if (!fs::is_regular_file(system::PathOf(file), unreadable))
        throw DatabaseFailure("A cópia \"" + file
                              + "\" não existe ou não é um arquivo. Verifique o caminho.");
}

DatabaseFailure UnreadableCopy(const std::string& file, const std::error_code& cause)
{
    return DatabaseFailure(WithDetail(
        "A cópia \"" + file + "\" não pode ser lida. Verifique as permissões e o disco.", cause.message()));
}

std::vector<TableCount> TryRestored(const std::string& restored, const std::string& file,
                                    const LongWork& work)
{
    try {
        return TrialRestore(restored, work);
    } catch (const Failure& failure) {
        throw DatabaseFailure("A cópia \"" + file + "\" não pode ser restaurada. " + failure.Description());
    }
}

void CopyContent(const std::string& file, const std::string& target, const LongWork& work)
{
    if (HasLog(file))
        CopyOnline(*OpenForReading(file), target, work);
    else
        system::CopyWholeFile(file, target);
}

/// The file stands for itself again afterwards, without a log beside it.
void TellRestored(const std::string& restored, const Author& author, const std::string& file)
{
    const std::unique_ptr<Database> database = ConnectForBuilding(restored);
    WriteTransaction transaction(*database, WriteTransaction::Of::Schema);
    AuditRestore(*database, author, file);
    transaction.Commit();
}

} // namespace

std::vector<TableCount> BackUpDatabase(const std::string& source, const std::string& file,
                                       const LongWork& work)
{
    if (IsServer(source))
        return CopyAsItIs(source, file, work);
    const std::unique_ptr<Database> database = OpenForReading(source);
    UnfinishedFile copy(file);
    std::vector<TableCount> counts = CopyOnline(*database, copy.Name(), work);
    TrialRestore(copy.Name(), counts, work);
    copy.Finish();
    return counts;
}

std::vector<TableCount> RestoreDatabase(const std::string& file, const std::string& target,
                                        const Author& author, const LongWork& work)
{
    RequireFile(file);
    if (IsServer(target)) {
        std::vector<TableCount> counts = CopyDatabase(file, target, work);
        TellOfSource(target, [&](Database& database) { AuditRestore(database, author, file); });
        return counts;
    }
    if (const auto refusal = CheckLocalDisk(target))
        throw DatabaseFailure(*refusal);
    UnfinishedFile restored(target);
    try {
        CopyContent(file, restored.Name(), work);
    } catch (const fs::filesystem_error& cause) {
        if (cause.path1() == system::PathOf(file))
            throw UnreadableCopy(file, cause.code());
        throw UnwritableFile(target, cause.code());
    }
    std::vector<TableCount> counts = TryRestored(restored.Name(), file, work);
    TellRestored(restored.Name(), author, file);
    restored.Finish();
    return counts;
}

} // namespace kova::family
