#include "family/data/engine/snapshot.hpp"
#include "family/data/sources/data_source.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/csv/csv_options.hpp"
#include "tools/agenda-data/csv/csv_writer.hpp"
#include "tools/agenda-data/csv/register.hpp"
#include "tools/agenda-data/csv/whole_file.hpp"
#include "tools/agenda-data/progress.hpp"

namespace kova::data {

namespace {

/// Fewer records are done before anybody asks how far they are.
constexpr long long RecordsWithoutProgress = 5000;

long long CountRows(family::Database& database, const char* table)
{
    try {
        long long rows = 0;
        database.Session() << std::string("select count(*) from ") + table, soci::into(rows);
        return rows;
    } catch (const soci::soci_error& cause) {
        throw family::TranslatedFailure(database.Path(), cause);
    }
}

/// The lines of one file on their way out.
class ExportRun {
public:
    ExportRun(const Call& call, Surroundings& surroundings, long long records)
        : encoding_(GivenEncoding(call).value_or(Encoding::Utf8)),
          separator_(GivenSeparator(call).value_or(';')),
          file_(call.Operand(2)),
          progress_(surroundings.error, "Exportação", records),
          tellsProgress_(records > RecordsWithoutProgress)
    {
        if (encoding_ == Encoding::Utf8)
            file_.Write(ByteOrderMark);
    }

    void Write(std::vector<std::string> fields)
    {
        for (std::string& field : fields)
            field = Guarded(std::move(field));
        file_.Write(Encoded(CsvLine(fields, separator_)));
        if (tellsProgress_)
            progress_.Reach(lines_);
        ++lines_;
    }

    /// Answers the number of records.
    long long Finish()
    {
        file_.Finish();
        return lines_ - 1;
    }

    Encoding GetEncoding() const { return encoding_; }

private:
    std::string Encoded(std::string line) const
    {
        if (encoding_ == Encoding::Utf8)
            return line;
        if (auto bytes = Latin1FromUtf8(line))
            return *std::move(bytes);
        line.resize(line.size() - 2);
        throw std::runtime_error("A linha tem caracteres que não existem em Latin-1. Use --encoding utf-8. ("
                                 + line + ")");
    }

    Encoding encoding_;
    char separator_;
    WholeFile file_;
    Progress progress_;
    bool tellsProgress_;
    long long lines_ = 0;
};

int Run(const Call& call, Surroundings& surroundings)
{
    const Register& from = FindRegister(call, 1);
    const auto database = family::OpenNewestForReading(call.Operand(0));
    const family::Snapshot snapshot(*database);
    ExportRun run(call, surroundings, CountRows(*database, from.table));
    from.exportTo(*database, [&](const std::vector<std::string>& fields) { run.Write(fields); });
    const long long records = run.Finish();
    surroundings.output << records << (records == 1 ? " linha exportada" : " linhas exportadas") << " em "
                        << NameOf(run.GetEncoding()) << ".\n";
    return 0;
}

} // namespace

const Command ExportCommand{
    {"export",
     "Exporta um cadastro para um novo arquivo CSV (padrão: utf-8 e \";\"), que pode ser\n"
     "importado de novo.",
     {"BANCO", "CADASTRO", "ARQUIVO"},
     {EncodingOption, SeparatorOption}},
    Run,
};

} // namespace kova::data
