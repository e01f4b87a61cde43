#include "family/data/copies/database_copy.hpp"

#include "family/data/copies/row_copy.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/migrations/chained_audit.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_source.hpp"
#include "family/data/sources/trial_restore.hpp"

#include <algorithm>

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
        // Links come as they are: what is wrong with the source's chain is wrong with the copy's.
        LiftChain(target.Session(), target.GetDialect());
        const std::vector<TableSum> read = CopyRows(source, target, work);
        HoldChain(target.Session(), target.GetDialect());
        if (SumTables(target, work) != read)
            throw DatabaseFailure("A cópia em \"" + target.Path()
                                  + "\" não ficou igual ao original e foi desfeita. Verifique o disco.");
        counts = CountsOf(read);
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(target.Path(), cause);
    }
}

std::vector<TableCount> MakeFile(Database& source, const std::string& path, Migrations steps,
                                 const LongWork& work)
{
    UnfinishedFile copy(path);
    std::vector<TableCount> counts;
    BuildFile(
        copy.Name(), [&](Database& target) { FillFrom(source, target, work, counts); }, steps);
    TrialRestore(copy.Name(), counts, work);
    copy.Finish();
    return counts;
}

/// The steps that lead to the schema that the database has.
Migrations StepsOf(Database& database)
{
    const int version = StoredVersion(database.Session());
    const Migrations all = CurrentMigrations();
    const auto behind =
        std::find_if(all.begin(), all.end(), [&](const Migration& step) { return step.version > version; });
    return all.first(static_cast<std::size_t>(behind - all.begin()));
}

} // namespace

std::vector<TableCount> CopyDatabase(const std::string& source, const std::string& target,
                                     const LongWork& work)
{
    const std::unique_ptr<Database> from = OpenNewestForReading(source);
    if (!IsServer(target))
        return MakeFile(*from, target, CurrentMigrations(), work);
    std::vector<TableCount> counts;
    CreateDatabase(target, [&](Database& to) { FillFrom(*from, to, work, counts); });
    return counts;
}

std::vector<TableCount> CopyAsItIs(const std::string& source, const std::string& file, const LongWork& work)
{
    const std::unique_ptr<Database> from = OpenForReading(source);
    try {
        return MakeFile(*from, file, StepsOf(*from), work);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(source, cause);
    }
}

} // namespace kova::family
