#include "family/data/copies/database_copy.hpp"

#include "family/data/copies/row_copy.hpp"
#include "family/data/copies/trial_restore.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_source.hpp"

namespace kova::family {

namespace {

std::vector<TableCount> CountsOf(const std::vector<TableSum>& sums)
{
    std::vector<TableCount> counts;
    for (const TableSum& sum : sums)
        counts.push_back({sum.name, sum.rows});
    return counts;
}

/// What `target` is filled with by CreateDatabase.
void FillFrom(Database& source, Database& target, const LongWork& work, std::vector<TableCount>& counts)
{
    try {
        const std::vector<TableSum> read = CopyRows(source, target, work);
        if (SumTables(target, work) != read)
            throw DatabaseFailure("A cópia em \"" + target.Path()
                                  + "\" não ficou igual ao original e foi desfeita. Verifique o disco.");
        counts = CountsOf(read);
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(target.Path(), cause);
    }
}

/// `fill` has told in `counts` what it has written.
void MakeFile(const std::string& path, const std::function<void(Database&)>& fill,
              const std::vector<TableCount>& counts, const LongWork& work)
{
    UnfinishedFile copy(path);
    BuildFile(copy.Name(), fill);
    TrialRestore(copy.Name(), counts, work);
    copy.Finish();
}

} // namespace

std::vector<TableCount> CopyDatabase(const std::string& source, const std::string& target,
                                     const LongWork& work)
{
    const std::unique_ptr<Database> from = OpenNewestForReading(source);
    std::vector<TableCount> counts;
    const auto fill = [&](Database& to) { FillFrom(*from, to, work, counts); };
    if (IsServer(target))
        CreateDatabase(target, fill);
    else
        MakeFile(target, fill, counts, work);
    return counts;
}

} // namespace kova::family
