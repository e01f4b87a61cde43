#include "family/data/sources/trial_restore.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/sources/file_source.hpp"
#include "family/data/sources/online_copy.hpp"
#include "system/flush.hpp"

#include <algorithm>

namespace kova::family {

namespace {

[[noreturn]] void FailTrial(const std::string& path, const std::string& reason,
                            const std::string& detail = {})
{
    throw DatabaseFailure(WithDetail("A cópia \"" + path + "\" não passou na prova de restauração: " + reason
                                         + " Verifique o disco e faça outra cópia.",
                                     detail));
}

void RequireWhole(Database& copy)
{
    std::string verdict;
    copy.Session() << "pragma integrity_check(1)", soci::into(verdict);
    if (verdict != "ok")
        FailTrial(copy.Path(), "o arquivo está danificado.", verdict);
}

void RequireReferences(Database& copy)
{
    long long orphans = 0;
    copy.Session() << "select count(*) from pragma_foreign_key_check", soci::into(orphans);
    if (orphans > 0)
        FailTrial(copy.Path(), "há " + std::to_string(orphans) + " referências sem registro.");
}

/// What `look` answers of the copy, once its pages are found whole.
template <class Look> auto Try(const std::string& path, const LongWork& work, Look look)
{
    try {
        system::FlushFile(path);
        system::ForgetContent(path);
        const std::unique_ptr<Database> copy = OpenFileForReading(path);
        const InterruptOnStop interrupt(*copy, work.stop);
        RequireWhole(*copy);
        return look(*copy);
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(path, cause);
    }
}

void RequireRows(const std::string& path, const std::vector<TableCount>& found,
                 const std::vector<TableCount>& expected)
{
    for (const TableCount& count : expected) {
        if (std::find(found.begin(), found.end(), count) == found.end())
            FailTrial(path,
                      "a tabela " + count.name + " não tem as " + std::to_string(count.rows)
                          + " linhas que deveria ter.");
    }
}

} // namespace

std::vector<TableCount> TrialRestore(const std::string& path, const LongWork& work)
{
    return Try(path, work, [](Database& copy) {
        RequireReferences(copy);
        return CountRows(copy);
    });
}

void TrialRestore(const std::string& path, const std::vector<TableCount>& expected, const LongWork& work)
{
    RequireRows(path, TrialRestore(path, work), expected);
}

void TryCopy(const std::string& path, const std::vector<TableCount>& expected)
{
    RequireRows(path, Try(path, {}, CountRows), expected);
}

} // namespace kova::family
