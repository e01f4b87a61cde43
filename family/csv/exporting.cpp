#include "family/csv/exporting.hpp"

#include "family/csv/csv_writer.hpp"
#include "family/csv/prices.hpp"
#include "family/csv/whole_file.hpp"
#include "family/data/audit/audit_events.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/told_reading.hpp"
#include "family/users/denials.hpp"

#include <memory>

namespace kova::family::csv {

namespace {

long long CountRows(Database& database, const char* table)
{
    try {
        long long rows = 0;
        database.Session() << std::string("select count(*) from ") + table, soci::into(rows);
        return rows;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

/// Before the file gets its name: what leaves the shop is told, or does not leave it. A copy stays as it is.
void TellExport(const std::string& source, const ExportOrder& order, long long records, const Author& author)
{
    TellOfSource(source, [&](Database& database) {
        AuditExport(database, author, 0,
                    AuditValues()
                        .Add("cadastro", std::string(order.from->name))
                        .Add("arquivo", order.path)
                        .Add("linhas", records));
    });
}

/// The lines of one file on their way out.
class ExportRun {
public:
    ExportRun(const ExportOrder& order, long long records, const LongWork& work)
        : order_(order), records_(records), work_(work), file_(order.path)
    {
        if (order_.encoding == Encoding::Utf8)
            file_.Write(ByteOrderMark);
    }

    void Write(std::vector<std::string> fields)
    {
        for (std::string& field : fields)
            field = Guarded(std::move(field));
        file_.Write(Encoded(CsvLine(fields, order_.separator)));
        work_.Reach(lines_, records_);
        work_.RequireGoingOn();
        ++lines_;
    }

    long long Records() const { return lines_ - 1; }
    void Finish() { file_.Finish(); }

private:
    std::string Encoded(std::string line) const
    {
        if (order_.encoding == Encoding::Utf8)
            return line;
        if (auto bytes = Latin1FromUtf8(line))
            return *std::move(bytes);
        line.resize(line.size() - 2);
        throw std::runtime_error("A linha tem caracteres que não existem em Latin-1. Use utf-8. (" + line
                                 + ")");
    }

    const ExportOrder& order_;
    long long records_;
    const LongWork& work_;
    WholeFile file_;
    /// The header's is the first.
    long long lines_ = 0;
};

/// Closes the connection: a file that nobody has worked with yet is not written to while it is read.
std::unique_ptr<ExportRun> Read(const std::string& source, const ExportOrder& order, const Author& author,
                                const LongWork& work)
{
    const auto database = OpenNewestForReading(source);
    const Snapshot snapshot(*database);
    RequireRight(*database, author, Right::Export);
    if (HasPrices(*order.from))
        RequireRight(*database, author, Right::SeePrices);
    auto run = std::make_unique<ExportRun>(order, CountRows(*database, order.from->table), work);
    order.from->exportTo(*database, [&](const std::vector<std::string>& fields) { run->Write(fields); });
    return run;
}

} // namespace

long long ExportTo(const std::string& source, const ExportOrder& order, const Author& author,
                   const LongWork& work)
{
    try {
        const std::unique_ptr<ExportRun> run = Read(source, order, author, work);
        TellExport(source, order, run->Records(), author);
        run->Finish();
        return run->Records();
    } catch (const RightDenied& denied) {
        // Over another connection: that one only reads.
        AuditDenial(*OpenDatabase(source), author, denied);
        throw;
    } catch (const Interrupted& cause) {
        throw TranslatedFailure(source, cause);
    }
}

} // namespace kova::family::csv
