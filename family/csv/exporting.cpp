#include "family/csv/exporting.hpp"

#include "family/csv/csv_writer.hpp"
#include "family/csv/prices.hpp"
#include "family/csv/whole_file.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/users/denials.hpp"

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

    /// Answers the number of records.
    long long Finish()
    {
        file_.Finish();
        return lines_ - 1;
    }

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

} // namespace

long long ExportTo(const std::string& source, const ExportOrder& order, const Author& author,
                   const LongWork& work)
{
    try {
        const auto database = OpenNewestForReading(source);
        const Snapshot snapshot(*database);
        RequireRight(*database, author, Right::Export);
        if (HasPrices(*order.from))
            RequireRight(*database, author, Right::SeePrices);
        ExportRun run(order, CountRows(*database, order.from->table), work);
        order.from->exportTo(*database, [&](const std::vector<std::string>& fields) { run.Write(fields); });
        return run.Finish();
    } catch (const RightDenied& denied) {
        // Over another connection: that one only reads.
        AuditDenial(*OpenDatabase(source), author, denied);
        throw;
    } catch (const Interrupted& cause) {
        throw TranslatedFailure(source, cause);
    }
}

} // namespace kova::family::csv
