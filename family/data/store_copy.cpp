#include "family/data/store_copy.hpp"

#include "family/data/data_source.hpp"
#include "family/data/file_checks.hpp"
#include "family/data/newest_schema.hpp"
#include "family/data/row_copy.hpp"
#include "family/data/server_connection.hpp"
#include "family/data/trial_restore.hpp"
#include "family/data/unfinished_file.hpp"

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
        if (SumTables(target) != read)
            throw DatabaseFailure("A cópia em \"" + target.Path()
                                  + "\" não ficou igual ao original e foi desfeita. Verifique o disco.");
        counts = CountsOf(read);
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(target.Path(), cause);
    }
}

/// Removes the file that was not finished.
class Unfinished {
public:
    explicit Unfinished(const std::string& path) : path_(path) { RemoveUnfinished(path_); }
    ~Unfinished() { RemoveUnfinished(path_); }
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;

private:
    const std::string& path_;
};

} // namespace

std::vector<TableCount> CopyStore(const std::string& source, const std::string& target, const LongWork& work)
{
    const std::unique_ptr<Database> from = OpenForReading(source);
    RequireNewestSchema(*from);
    std::vector<TableCount> counts;
    const auto fill = [&](Database& to) { FillFrom(*from, to, work, counts); };
    if (IsServer(target)) {
        CreateDatabase(target, fill);
        return counts;
    }
    if (const auto refusal = CheckNewFile(target))
        throw DatabaseFailure(*refusal);
    const Unfinished guard(target);
    CreateDatabase(UnfinishedName(target), fill);
    TrialRestore(UnfinishedName(target), counts, work);
    FinishFile(target);
    return counts;
}

} // namespace kova::family
