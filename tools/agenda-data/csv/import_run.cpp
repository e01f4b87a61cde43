#include "tools/agenda-data/csv/import_run.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/numbering.hpp"
#include "system/computer_name.hpp"

namespace kova::data {

namespace {

/// Shorter files are done before anybody asks how far they are.
constexpr long long LinesWithoutProgress = 5000;

/// Who stands in the audit.
family::Author ImportAuthor(DateTime now)
{
    family::Author author;
    author.code = "0";
    author.name = "agenda-data";
    author.moment = family::IsoMoment(now);
    author.desk = system::ComputerName();
    return author;
}

} // namespace

ImportRun::ImportRun(const Register& into, std::string_view text, char separator, Surroundings& surroundings)
    : register_(into),
      text_(text),
      reader_(text, separator),
      surroundings_(surroundings),
      problems_(surroundings.error)
{
}

template <class Use> void ImportRun::ForEachLine(const char* what, Use use)
{
    const long long lines = CountLines(text_);
    Progress progress(surroundings_.error, what, lines);
    CsvReader reader = reader_;
    for (CsvRecord record; reader.Next(record);) {
        if (!record.IsBlank()) {
            Line line = header_->Read(record, problems_);
            use(line);
        }
        if (lines > LinesWithoutProgress)
            progress.Reach(record.line);
    }
    if (lines > LinesWithoutProgress)
        progress.Reach(lines);
}

void ImportRun::Check(family::Database& database)
{
    import_ = register_.startImport(database, surroundings_.now);
    CsvRecord header;
    if (!reader_.Next(header)) {
        problems_.Add(1, "o arquivo está vazio: falta a linha com os nomes das colunas.");
        return;
    }
    header_.emplace(header, import_->Titles(), register_.name, problems_);
    if (problems_.Count() > 0)
        return;
    ForEachLine("Conferência", [&](Line& line) {
        ++records_;
        if (!import_->HasCode(line))
            ++withoutCode_;
        import_->Check(line);
    });
}

/// A code that the engine gives could otherwise be the one that a later line brings.
void ImportRun::Write(family::Database& database)
{
    const family::Author author = ImportAuthor(surroundings_.now);
    if (withoutCode_ < records_)
        WriteThose(true, author);
    family::NumberOn(database);
    if (withoutCode_ > 0)
        WriteThose(false, author);
    // Also a line without a code may name another one, as an appointment does its package's.
    family::NumberOn(database);
}

void ImportRun::WriteThose(bool withCode, const family::Author& author)
{
    ForEachLine(withCode ? "Gravação" : "Gravação com novos códigos", [&](Line& line) {
        if (import_->HasCode(line) == withCode)
            import_->Write(line, author);
    });
}

} // namespace kova::data
