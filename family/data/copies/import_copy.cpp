#include "family/data/copies/import_copy.hpp"

#include "family/data/copies/database_backup.hpp"
#include "family/data/copies/kept_copies.hpp"
#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/server_connection.hpp"
#include "system/path_text.hpp"

#include <algorithm>
#include <array>
#include <cstdio>

namespace kova::family {

namespace {

namespace fs = std::filesystem;

/// A digit stands for each '0'.
bool HasForm(std::string_view text, std::string_view form)
{
    return std::ranges::equal(text, form, [](char letter, char wanted) {
        return wanted == '0' ? letter >= '0' && letter <= '9' : letter == wanted;
    });
}

bool IsStamp(std::string_view text)
{
    return HasForm(text, "0000-00-00-000000") || HasForm(text, "0000-00-00-000000-00");
}

std::string Stamp(DateTime moment, int attempt)
{
    const auto& [date, time] = moment;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d-%02d%02d%02d", date.year, date.month, date.day,
                  time.hour, time.minute, time.second);
    std::string stamp = text.data();
    if (attempt > 1)
        stamp.append(attempt < 10 ? "-0" : "-").append(std::to_string(attempt));
    return stamp;
}

/// Behind those of the same second, the first of which may be gone: names order as the copies were made.
std::string NextName(const KeptCopies& copies, DateTime moment)
{
    constexpr int MostOfOneSecond = 99;
    int last = 0;
    for (int attempt = 1; attempt <= MostOfOneSecond; ++attempt) {
        const fs::path there = system::PathOf(copies.NameOf(Stamp(moment, attempt)));
        if (fs::exists(fs::symlink_status(there)))
            last = attempt;
    }
    return copies.NameOf(Stamp(moment, last + 1));
}

} // namespace

std::string CopyBeforeImport(const std::string& path, DateTime moment, const LongWork& work)
{
    if (IsServer(path))
        return {};
    const KeptCopies copies(path, ".antes-da-importacao-", IsStamp);
    try {
        copies.RemoveRests();
        const std::string file = NextName(copies, moment);
        BackUpDatabase(path, file, work);
        copies.RemoveOld(file, ImportCopiesKept);
        return file;
    } catch (const fs::filesystem_error& cause) {
        throw TranslatedFailure(path, cause);
    }
}

} // namespace kova::family
