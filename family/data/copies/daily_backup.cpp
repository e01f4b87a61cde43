#include "family/data/copies/daily_backup.hpp"

#include "family/data/copies/database_backup.hpp"
#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "system/access.hpp"
#include "system/path_text.hpp"

#include <algorithm>
#include <functional>
#include <vector>

namespace kova::family {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Mark = ".copia-";
constexpr std::string_view Ending = ".bak";
constexpr std::size_t DateLength = 10;

/// Whether the name is that of a copy of the database called `base`.
bool IsDailyBackup(std::string_view name, std::string_view base)
{
    const std::size_t length = base.size() + Mark.size() + DateLength + Ending.size();
    return name.size() == length && name.substr(0, base.size()) == base
        && name.substr(base.size(), Mark.size()) == Mark
        && IsIsoDate(name.substr(base.size() + Mark.size(), DateLength))
        && name.substr(length - Ending.size()) == Ending;
}

fs::path FolderOf(const fs::path& path)
{
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

/// Names, with or without `ending`, of the files beside the database that are its daily copies.
std::vector<std::string> DailyFiles(const std::string& path, const std::string& ending)
{
    std::vector<std::string> files;
    const fs::path database = system::PathOf(path);
    const std::string base = system::TextOf(database.filename());
    const std::string folder = path.substr(0, path.size() - base.size());
    for (const fs::directory_entry& entry : fs::directory_iterator(FolderOf(database))) {
        std::string name = system::TextOf(entry.path().filename());
        if (!name.ends_with(ending) || !entry.is_regular_file())
            continue;
        name.resize(name.size() - ending.size());
        if (IsDailyBackup(name, base))
            files.push_back(folder + name);
    }
    return files;
}

/// What attempts that were killed have left, of whatever day.
void RemoveRests(const std::string& path)
{
    for (const std::string& file : DailyFiles(path, UnfinishedName("")))
        RemoveAbandoned(file);
}

/// Earlier versions made copies that everybody could read.
void KeepFromOthers(const std::string& path)
{
    for (const std::string& file : DailyFiles(path, ""))
        system::KeepFromOthers(file);
}

/// Their names order as their days. The day's own stays also where a wrong clock once made later ones.
void RemoveOld(const std::string& path, const std::string& today)
{
    std::vector<std::string> files = DailyFiles(path, "");
    std::erase(files, today);
    std::sort(files.begin(), files.end(), std::greater<>());
    for (std::size_t at = DailyBackupsKept - 1; at < files.size(); ++at)
        fs::remove(system::PathOf(files[at]));
}

} // namespace

std::string DailyBackupName(const std::string& path, Date day)
{
    return path + std::string(Mark) + IsoDate(day) + std::string(Ending);
}

bool MakeDailyBackup(const std::string& path, Date day, const LongWork& work)
{
    if (IsServer(path))
        return false;
    const std::string file = DailyBackupName(path, day);
    try {
        RemoveRests(path);
        if (fs::exists(fs::symlink_status(system::PathOf(file))) || RemoveAbandoned(file))
            return false;
        BackUpDatabase(path, file, work);
        RemoveOld(path, file);
        KeepFromOthers(path);
        return true;
    } catch (const fs::filesystem_error& cause) {
        throw TranslatedFailure(file, cause);
    }
}

} // namespace kova::family
