#include "family/data/copies/kept_copies.hpp"

#include "family/data/engine/unfinished_file.hpp"
#include "system/access.hpp"
#include "system/path_text.hpp"

#include <algorithm>
#include <functional>
#include <ranges>

namespace kova::family {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Ending = ".bak";

fs::path FolderOf(const fs::path& path)
{
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

} // namespace

std::string KeptCopies::NameOf(std::string_view stamp) const
{
    return std::string(path_).append(mark_).append(stamp).append(Ending);
}

bool KeptCopies::IsCopy(std::string_view name, std::string_view base) const
{
    if (!name.starts_with(base) || !name.substr(base.size()).starts_with(mark_) || !name.ends_with(Ending))
        return false;
    const std::size_t before = base.size() + mark_.size();
    return name.size() >= before + Ending.size()
        && isStamp_(name.substr(before, name.size() - before - Ending.size()));
}

std::vector<std::string> KeptCopies::Files(const std::string& ending) const
{
    std::vector<std::string> files;
    const fs::path database = system::PathOf(path_);
    const std::string base = system::TextOf(database.filename());
    const std::string folder = path_.substr(0, path_.size() - base.size());
    for (const fs::directory_entry& entry : fs::directory_iterator(FolderOf(database))) {
        std::string name = system::TextOf(entry.path().filename());
        if (!name.ends_with(ending) || !entry.is_regular_file())
            continue;
        name.resize(name.size() - ending.size());
        if (IsCopy(name, base))
            files.push_back(folder + name);
    }
    return files;
}

void KeptCopies::RemoveRests() const
{
    for (const std::string& file : Files(UnfinishedName("")))
        RemoveAbandoned(file);
}

void KeptCopies::KeepFromOthers() const
{
    for (const std::string& file : Files(""))
        system::KeepFromOthers(file);
}

void KeptCopies::RemoveOld(const std::string& justMade, std::size_t most) const
{
    std::vector<std::string> files = Files("");
    std::erase(files, justMade);
    // The ending is not compared: a stamp comes before one that goes on behind it.
    std::ranges::sort(files, std::greater<>(), [](const std::string& file) {
        return std::string_view(file).substr(0, file.size() - Ending.size());
    });
    for (const std::string& file : files | std::views::drop(most - 1))
        fs::remove(system::PathOf(file));
}

} // namespace kova::family
