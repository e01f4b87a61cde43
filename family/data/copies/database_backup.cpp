#include "family/data/copies/database_backup.hpp"

#include "family/data/copies/database_copy.hpp"
#include "family/data/copies/online_copy.hpp"
#include "family/data/copies/trial_restore.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/sources/data_source.hpp"
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
    // A copy is often kept from being written; the database is not.
    fs::permissions(system::PathOf(target), fs::perms::owner_read | fs::perms::owner_write,
                    fs::perm_options::add);
}

} // namespace

std::vector<TableCount> BackUpDatabase(const std::string& source, const std::string& file,
                                       const LongWork& work)
{
    if (IsServer(source))
        return CopyDatabase(source, file, work);
    const std::unique_ptr<Database> database = OpenForReading(source);
    UnfinishedFile copy(file);
    std::vector<TableCount> counts = CopyOnline(*database, copy.Name(), work);
    TrialRestore(copy.Name(), counts, work);
    copy.Finish();
    return counts;
}

std::vector<TableCount> RestoreDatabase(const std::string& file, const std::string& target,
                                        const LongWork& work)
{
    RequireFile(file);
    if (IsServer(target))
        return CopyDatabase(file, target, work);
    UnfinishedFile restored(target);
    try {
        CopyContent(file, restored.Name(), work);
    } catch (const fs::filesystem_error& cause) {
        throw TranslatedFailure(target, cause);
    }
    std::vector<TableCount> counts = TryRestored(restored.Name(), file, work);
    restored.Finish();
    return counts;
}

} // namespace kova::family
