#include "family/csv/import_run.hpp"

#include "family/data/rows/numbering.hpp"
#include "family/registers/registers.hpp"

namespace kova::family::csv {

namespace {

/// What they are about is asked of the database together.
constexpr std::size_t LinesAtOnce = 500;

} // namespace

ImportRun::ImportRun(const Register& into, std::string_view text, char separator, Known known, DateTime now,
                     ImportWatch watch)
    : register_(into),
      text_(text),
      separator_(separator),
      reader_(text, separator),
      now_(now),
      watch_(std::move(watch)),
      problems_(watch_.problem),
      known_(known)
{
}

bool ImportRun::ReadHeader()
{
    reader_ = CsvReader(text_, separator_);
    CsvRecord header;
    if (reader_.Next(header))
        header_.emplace(header, import_->Titles(), register_.name, problems_);
    else
        problems_.Add(1, "o arquivo está vazio: falta a linha com os nomes das colunas.");
    problems_.TellAll();
    return problems_.Count() == 0;
}

template <class Use> void ImportRun::ForEachGroup(ImportStep step, Use use)
{
    const long long lines = CountLines(text_);
    CsvReader reader = reader_;
    std::vector<Line> group;
    for (CsvRecord record; reader.Next(record);) {
        if (record.IsBlank())
            continue;
        group.push_back(header_->Read(record, problems_));
        if (group.size() < LinesAtOnce)
            continue;
        use(std::span(group));
        group.clear();
        watch_.Reach(step, record.line, lines);
    }
    if (!group.empty())
        use(std::span(group));
    watch_.Reach(step, lines, lines);
}

void ImportRun::Check(Database& database, ImportStep step)
{
    import_ = register_.startImport(database, now_);
    database_ = &database;
    records_ = 0;
    withoutCode_ = 0;
    updated_ = 0;
    leftOut_.clear();
    updates_.reset();
    if (!ReadHeader())
        return;
    if (known_ == Known::Updated)
        updates_.emplace(
            *registers::RegisterNamed(register_.name), *header_, import_->Titles(),
            [this](Key key, const std::vector<std::string>& texts) { import_->Replace(key, texts); });
    if (updates_ && updates_->Expects())
        ExpectUpdates(database);
    ForEachGroup(step, [this](std::span<Line> lines) { CheckGroup(lines); });
}

void ImportRun::ExpectUpdates(Database& database)
{
    Problems untold([](const Problem&) {});
    CsvReader reader = reader_;
    for (CsvRecord record; reader.Next(record);) {
        watch_.RequireGoingOn();
        if (!record.IsBlank())
            updates_->Expect(database, header_->Read(record, untold));
    }
}

void ImportRun::CheckGroup(std::span<Line> lines)
{
    std::vector<Line> others;
    for (Line& line : lines) {
        ++records_;
        if (!import_->HasCode(line))
            ++withoutCode_;
        if (updates_ && updates_->Take(*database_, line))
            ++updated_;
        else
            others.push_back(line);
    }
    CheckNew(others);
    problems_.TellAll();
}

void ImportRun::CheckNew(std::vector<Line>& lines)
{
    for (Line& line : lines) {
        if (known_ == Known::LeftOut)
            line.LeaveOutStored();
    }
    import_->Check(lines);
    for (const Line& line : lines) {
        if (line.IsLeftOut())
            leftOut_.insert(line.Number());
    }
}

/// A code that the engine gives could otherwise be the one that a later line brings.
void ImportRun::Write(Database& database, const Author& author)
{
    if (withoutCode_ < records_)
        WriteThose(true, author);
    NumberOn(database);
    if (withoutCode_ > 0)
        WriteThose(false, author);
    // Also a line without a code may name another one, as an appointment does its package's.
    NumberOn(database);
    problems_.TellAll();
}

void ImportRun::WriteLine(Line& line, const Author& author)
{
    if (leftOut_.contains(line.Number()))
        return;
    if (updates_ && updates_->Has(line))
        updates_->Write(*database_, line, author);
    else
        import_->Write(line, author);
}

void ImportRun::WriteThose(bool withCode, const Author& author)
{
    ForEachGroup(withCode ? ImportStep::Writing : ImportStep::WritingNew, [&](std::span<Line> lines) {
        for (Line& line : lines) {
            if (import_->HasCode(line) == withCode)
                WriteLine(line, author);
        }
    });
}

} // namespace kova::family::csv
