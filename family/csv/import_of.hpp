#pragma once

#include "agenda/contracts/text.hpp"
#include "family/business/merged_row_text.hpp"
#include "family/csv/occurrences.hpp"
#include "family/csv/register.hpp"
#include "family/data/audit/add_row.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/registers/description/column.hpp"

#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_set>

namespace kova::family::csv {

using family::Key;
using family::Nullable;
using family::registers::Column;
using family::registers::Columns;

template <class Record> std::vector<Title> TitlesOf(const Columns<Record>& columns)
{
    std::vector<Title> titles;
    for (const Column<Record>& column : columns)
        titles.push_back({column.field.label, column.field.required});
    return titles;
}

/// Reads all cells of a line into a record; what cannot be read is told to the line.
template <class Record> Record ReadRecord(const Columns<Record>& columns, Line& line)
{
    Record record;
    for (std::size_t at = 0; at < columns.size(); ++at) {
        const Column<Record>& column = columns[at];
        const std::string& cell = line.Cell(at);
        if (cell.empty()) {
            if (column.field.required)
                line.Refuse(column.field.label, "deve ser informado.");
            continue;
        }
        if (const std::string why = column.read(cell, record); !why.empty())
            line.Refuse(column.field.label, cell, why);
    }
    return record;
}

/// The code alone of a table's row.
template <class Row> struct CodeOf {
    static constexpr const char* Table = Row::Table;
    Key code = 0;

    template <class Visit> void Columns(Visit visit)
    {
        Row row;
        bool isKey = true;
        row.Columns([&](const char* column, auto&) {
            if (isKey)
                visit(column, code);
            isKey = false;
        });
    }
};

/// An import whose lines become Records: rows of a table with what belongs to them. The first of the columns
/// is the code.
///
/// A record is there already where one has its code or, where its line brings none, where one is like it in
/// what tells such records apart. Such a line is refused: a file that is imported again adds nothing. A code
/// of its own brings in a record that is only alike.
template <class Record> class ImportOf : public Import {
public:
    ImportOf(family::Database& database, const Columns<Record>& columns)
        : database_(database), columns_(columns), titles_(TitlesOf(columns))
    {
    }

    const std::vector<Title>& Titles() const override { return titles_; }
    bool HasCode(const Line& line) const override { return !line.Cell(0).empty(); }

    void Check(std::span<Line> lines) override
    {
        std::vector<Record> records;
        for (Line& line : lines)
            records.push_back(Read(line));
        LookUpCodes(records);
        SeekTraits(records);
        LookUp(records);
        for (std::size_t at = 0; at < records.size(); ++at)
            CheckLine(records[at], lines[at]);
    }

    void Write(Line& line, const family::Author& author) override
    {
        Record record = Read(line);
        WriteRecord(record, author);
    }

protected:
    /// Fills in what follows from the cells.
    virtual void Complete(Record&) const { }
    /// Reads what the records refer to, and the stored ones that they may be like.
    virtual void LookUp(std::span<const Record> records) = 0;
    /// What speaks against a record beyond its single cells. A cell that could not be read is told already
    /// and left 0 or empty.
    virtual void CheckRecord(Record&, Line&) { }
    /// What tells such records apart where they bear no code: two that have any of it in common are alike.
    virtual std::vector<std::string> TraitsOf(const Record& record) const = 0;
    /// What speaks against a good record because of those that are there beside it.
    virtual void TakeRoom(const Record&, Line&) { }
    virtual void WriteRecord(Record& record, const family::Author& author) = 0;

    /// Tells of a stored record that those being checked may be like.
    void AddStored(Record stored)
    {
        for (const std::string& trait : TraitsOf(stored)) {
            if (soughtTraits_.contains(trait))
                traits_.AddStored(trait, CodeIn(stored));
        }
    }

    /// Whether the line is left out because a stored record stands there.
    static bool LeavesOut(const Place& place, Line& line) { return place.IsStored() && line.IsStored(); }

    /// Whether any of those being checked may be like a stored one.
    bool SeeksTraits() const { return !soughtTraits_.empty(); }

    static Key CodeIn(Record record) { return family::KeyOfRow(record); }
    family::Database& GetDatabase() { return database_; }

private:
    Record Read(Line& line) const
    {
        Record record = ReadRecord(columns_, line);
        Complete(record);
        return record;
    }

    void LookUpCodes(std::span<const Record> records)
    {
        std::set<Key> codes;
        for (const Record& record : records)
            codes.insert(CodeIn(record));
        codes.erase(0);
        using Known = CodeOf<Record>;
        family::SelectWhere<Known>(database_, codes,
                                   [this](const Known& known) { codes_.AddStored(known.code, known.code); });
    }

    void SeekTraits(std::span<const Record> records)
    {
        soughtTraits_.clear();
        for (const Record& record : records) {
            if (CodeIn(record) == 0)
                std::ranges::move(TraitsOf(record), std::inserter(soughtTraits_, soughtTraits_.end()));
        }
    }

    void CheckLine(Record& record, Line& line)
    {
        const Key code = CodeIn(record);
        if (code != 0)
            CheckCode(code, line);
        if (!line.IsLeftOut())
            CheckRecord(record, line);
        if (code == 0 && line.IsGood() && !line.IsLeftOut())
            CheckTraits(record, line);
        if (line.IsGood() && !line.IsLeftOut())
            TakeRoom(record, line);
    }

    void CheckCode(Key code, Line& line)
    {
        const auto place = codes_.Add(code, line.Number());
        if (place && !LeavesOut(*place, line))
            line.Refuse(CodeName(), std::to_string(code), place->Told() + ".");
        const std::string why = place ? std::string() : WhyUnited(code);
        if (!why.empty() && !line.IsStored())
            line.Refuse(CodeName(), std::to_string(code), why);
    }

    /// A code whose row goes on in another one brings no row of its own again.
    std::string WhyUnited(Key code)
    {
        if (!united_)
            united_ = family::RowsOfUnions(database_, Record::Table);
        return united_->contains(code) ? family::WhyMerged<Record>(database_, code) : std::string();
    }

    void CheckTraits(const Record& record, Line& line)
    {
        for (const std::string& trait : TraitsOf(record)) {
            const auto place = traits_.Add(trait, line.Number());
            if (!place)
                continue;
            if (LeavesOut(*place, line))
                return;
            const std::string code = place->IsStored()
                ? ", com o " + LowerCase(CodeName()) + " " + std::to_string(place->code)
                : "";
            line.Refuse(CodeName(),
                        "o registro " + place->Told() + code + ". Se for outro, preencha esta coluna.");
            return;
        }
    }

    std::string CodeName() const { return std::string(columns_.front().field.label); }

    family::Database& database_;
    const Columns<Record>& columns_;
    std::vector<Title> titles_;
    Occurrences<Key> codes_;
    /// See RowsOfUnions; read when a new code is to be looked for in it.
    std::optional<std::set<Key>> united_;
    Occurrences<std::string> traits_;
    /// Of the lines that are being checked.
    std::unordered_set<std::string> soughtTraits_;
};

template <class Kind> std::unique_ptr<Import> StartImport(family::Database& database, DateTime now)
{
    return std::make_unique<Kind>(database, now);
}

/// Hands over the names of the columns that are written.
template <class Record> void ExportNames(const Columns<Record>& columns, const FieldsSink& sink)
{
    std::vector<std::string> names;
    for (const Column<Record>& column : columns) {
        if (column.write)
            names.emplace_back(column.field.label);
    }
    sink(names);
}

template <class Record>
void ExportRecord(const Columns<Record>& columns, const Record& record, const FieldsSink& sink)
{
    std::vector<std::string> fields;
    for (const Column<Record>& column : columns) {
        if (column.write)
            fields.push_back(column.write(record));
    }
    sink(fields);
}

} // namespace kova::family::csv
