#include "family/csv/importing.hpp"

#include "family/csv/prices.hpp"
#include "family/data/audit/import_audit.hpp"
#include "family/data/copies/import_copy.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/registers.hpp"
#include "family/users/denials.hpp"

namespace kova::family::csv {

namespace {

ImportReport ReportOf(const ImportRun& run)
{
    ImportReport report;
    report.records = run.Records();
    report.added = run.Records() - run.Updated() - run.LeftOut();
    report.changed = run.Changing();
    report.same = run.Updated() - run.Changing();
    report.leftOut = run.LeftOut();
    report.problems = run.ProblemCount();
    report.problemLines = run.ProblemLines();
    report.changes = run.Changes();
    return report;
}

/// What others have changed so far, as a number; nothing where the engine does not tell.
std::optional<long long> ChangesOfOthers(Database& database)
{
    const std::string& question = database.GetDialect().changesOfOthers;
    if (question.empty())
        return std::nullopt;
    try {
        long long changes = 0;
        database.Session() << question, soci::into(changes);
        return changes;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

/// Appointments are no register that is written by its rules; whoever may book brings them in.
Right RightToBringIn(const Register& into)
{
    const registers::Register* const written = registers::RegisterNamed(into.name);
    return written ? written->RightToWrite() : Right::Book;
}

void RequireRights(Database& database, const Register& into, const Author& author)
{
    RequireRight(database, author, RightToBringIn(into));
    if (HasPrices(into))
        RequireRight(database, author, Right::SeePrices);
}

/// A file on its way into a database.
class Importing {
public:
    Importing(const std::string& source, const ImportOrder& order, DateTime now, const ImportWatch& watch)
        : source_(source),
          order_(order),
          now_(now),
          watch_(watch),
          run_(*order.into, order.file.text, order.separator, order.known, now, watch),
          database_(OpenForLongWork(source))
    {
    }

    ImportReport Run(const Author& author)
    {
        return TellingDenials(*database_, author, [&] {
            RequireRights(*database_, *order_.into, author);
            return RunAllowed(author);
        });
    }

private:
    ImportReport RunAllowed(const Author& author)
    {
        Check();
        ImportReport report = ReportOf(run_);
        if (!report.IsGood() || !report.Writes())
            return report;
        const std::string copy = order_.makesCopy ? Copy() : std::string();
        report = Write(author);
        report.copy = copy;
        return report;
    }

    /// Nobody waits for it.
    void Check()
    {
        const Snapshot snapshot(*database_);
        changes_ = ChangesOfOthers(*database_);
        run_.Check(*database_, ImportStep::Checking);
    }

    std::string Copy() const
    {
        LongWork work;
        work.stop = watch_.stop;
        work.progress = [this](long long done, long long total) {
            if (watch_.progress)
                watch_.progress(ImportStep::Copying, done, total);
        };
        return CopyBeforeImport(source_, now_, work);
    }

    /// Writes what was good, where it still is and still changes anything.
    ImportReport Write(Author author)
    {
        WriteTransaction transaction(*database_);
        RequireRights(*database_, *order_.into, author);
        LockImports(*database_);
        run_.LockRoom();
        if (!changes_ || changes_ != ChangesOfOthers(*database_))
            run_.Check(*database_, ImportStep::CheckingAgain);
        ImportReport report = ReportOf(run_);
        if (!report.IsGood() || !report.Writes())
            return report;
        BeginImport(*database_, author,
                    {order_.path, NameOf(order_.file.encoding), std::string(order_.into->name),
                     report.records, report.added, report.changed});
        run_.Write(*database_, author);
        report = ReportOf(run_);
        if (!report.IsGood())
            return report;
        transaction.Commit();
        report.number = author.importNumber;
        return report;
    }

    const std::string& source_;
    const ImportOrder& order_;
    DateTime now_;
    const ImportWatch& watch_;
    ImportRun run_;
    std::shared_ptr<Database> database_;
    std::optional<long long> changes_;
};

} // namespace

bool TakesUpdates(const Register& into) { return registers::RegisterNamed(into.name) != nullptr; }

ImportReport RehearseImport(const std::string& source, const ImportOrder& order, const Author& author,
                            DateTime now, const ImportWatch& watch)
{
    try {
        const auto database = OpenNewestForReading(source);
        const Snapshot snapshot(*database);
        // It tells what stands there now of what it would change.
        RequireRights(*database, *order.into, author);
        ImportRun run(*order.into, order.file.text, order.separator, order.known, now, watch);
        run.Check(*database, ImportStep::Checking);
        return ReportOf(run);
    } catch (const RightDenied& denied) {
        // Over another connection: that one only reads.
        AuditDenial(*OpenDatabase(source), author, denied);
        throw;
    } catch (const Interrupted& cause) {
        throw TranslatedFailure(source, cause);
    }
}

ImportReport BringIn(const std::string& source, const ImportOrder& order, const Author& author, DateTime now,
                     const ImportWatch& watch)
{
    try {
        return Importing(source, order, now, watch).Run(author);
    } catch (const Interrupted& cause) {
        throw TranslatedFailure(source, cause);
    }
}

registers::UndoneImport TakeBack(const std::string& source, std::optional<Key> number,
                                 registers::ChangedRows changed, const Author& author, const LongWork& work)
{
    return registers::UndoImport(*OpenForLongWork(source), number, changed, author, work);
}

} // namespace kova::family::csv
