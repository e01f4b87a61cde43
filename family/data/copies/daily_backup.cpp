#include "family/data/copies/daily_backup.hpp"

#include "family/data/copies/database_backup.hpp"
#include "family/data/copies/kept_copies.hpp"
#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "system/path_text.hpp"

namespace kova::family {

namespace {

namespace fs = std::filesystem;

KeptCopies CopiesOf(const std::string& path) { return {path, ".copia-", IsIsoDate}; }

} // namespace

std::string DailyBackupName(const std::string& path, Date day) { return CopiesOf(path).NameOf(IsoDate(day)); }

bool MakeDailyBackup(const std::string& path, Date day, const LongWork& work)
{
    if (IsServer(path))
        return false;
    const KeptCopies copies = CopiesOf(path);
    const std::string file = DailyBackupName(path, day);
    try {
        copies.RemoveRests();
        if (fs::exists(fs::symlink_status(system::PathOf(file))) || RemoveAbandoned(file))
            return false;
        BackUpDatabase(path, file, work);
        copies.RemoveOld(file, DailyBackupsKept);
        copies.KeepFromOthers();
        return true;
    } catch (const fs::filesystem_error& cause) {
        throw TranslatedFailure(file, cause);
    }
}

} // namespace kova::family
