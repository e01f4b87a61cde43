#pragma once

#include "family/data/audit/add_row.hpp"
#include "family/data/rows/select_rows.hpp"
#include "tools/agenda-data/csv/column_kinds.hpp"
#include "tools/agenda-data/csv/register.hpp"

#include <unordered_map>

namespace kova::data {

/// Where a value that may be there only once stands: in the database, or in a line of the file.
template <class Value> class Occurrences {
public:
    void AddStored(const Value& value) { lines_.emplace(value, Stored); }

    bool Has(const Value& value) const { return lines_.find(value) != lines_.end(); }

    /// Adds a value of the file. Answers why it may not be there, or nothing.
    std::string Add(const Value& value, long long line)
    {
        const auto [at, isNew] = lines_.emplace(value, line);
        if (isNew)
            return {};
        return at->second == Stored ? "já existe no banco de dados."
                                    : "já está na linha " + std::to_string(at->second) + ".";
    }

private:
    static constexpr long long Stored = 0;

    std::unordered_map<Value, long long> lines_;
};

/// An import whose lines become Records: rows of a table with what belongs to them. The first of the columns
/// is the code.
template <class Record> class ImportOf : public Import {
public:
    ImportOf(family::Database& database, const Columns<Record>& columns)
        : database_(database), columns_(columns), titles_(TitlesOf(columns))
    {
    }

    const std::vector<Title>& Titles() const override { return titles_; }
    bool HasCode(const Line& line) const override { return !line.Cell(0).empty(); }

    void Check(Line& line) override
    {
        Record record = ReadRecord(columns_, line);
        if (const Key code = family::KeyOfRow(record); code != 0) {
            if (const std::string why = codes_.Add(code, line.Number()); !why.empty())
                line.Refuse(columns_.front().name, std::to_string(code), why);
        }
        CheckRecord(record, line);
    }

    void Write(Line& line, const family::Author& author) override
    {
        Record record = ReadRecord(columns_, line);
        WriteRecord(record, author);
    }

protected:
    /// What speaks against a record beyond its single cells. A cell that could not be read is told already
    /// and left 0 or empty.
    virtual void CheckRecord(Record& record, Line& line) = 0;
    virtual void WriteRecord(Record& record, const family::Author& author) = 0;

    void AddStoredCode(Key code) { codes_.AddStored(code); }
    family::Database& GetDatabase() { return database_; }

private:
    family::Database& database_;
    const Columns<Record>& columns_;
    std::vector<Title> titles_;
    Occurrences<Key> codes_;
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
            names.emplace_back(column.name);
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

/// The export of a register whose records are the rows of one table.
template <class Record>
void ExportRows(family::Database& database, const Columns<Record>& columns, const FieldsSink& sink)
{
    ExportNames(columns, sink);
    family::SelectRows<Record>(database, [&](const Record& record) { ExportRecord(columns, record, sink); });
}

} // namespace kova::data
