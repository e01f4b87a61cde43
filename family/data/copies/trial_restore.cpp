#include "family/data/copies/trial_restore.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/copies/online_copy.hpp"
#include "family/data/sources/data_source.hpp"
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

void RequireSound(Database& copy)
{
    std::string verdict;
    copy.Session() << "pragma integrity_check(1)", soci::into(verdict);
    if (verdict != "ok")
        FailTrial(copy.Path(), "o arquivo está danificado.", verdict);
    long long orphans = 0;
    copy.Session() << "select count(*) from pragma_foreign_key_check", soci::into(orphans);
    if (orphans > 0)
        FailTrial(copy.Path(), "há " + std::to_string(orphans) + " referências sem registro.");
}

} // namespace

std::vector<TableCount> TrialRestore(const std::string& path, const LongWork& work)
{
    try {
        system::FlushFile(path);
        system::ForgetContent(path);
        const std::unique_ptr<Database> copy = OpenForReading(path);
        const InterruptOnStop interrupt(*copy, work.stop);
        RequireSound(*copy);
        return CountRows(*copy);
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(path, cause);
    }
}

void TrialRestore(const std::string& path, const std::vector<TableCount>& expected, const LongWork& work)
{
    const std::vector<TableCount> found = TrialRestore(path, work);
    for (const TableCount& count : expected) {
        if (std::find(found.begin(), found.end(), count) == found.end())
            FailTrial(path,
                      "a tabela " + count.name + " não tem as " + std::to_string(count.rows)
                          + " linhas que deveria ter.");
    }
}

} // namespace kova::family
