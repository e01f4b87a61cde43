#pragma once

#include "tools/agenda-data/csv/header.hpp"

#include <functional>

namespace kova::data {

/// A column of a register's file: how its cell goes into a record and comes out of one.
template <class Record> struct Column {
    std::string_view name;
    /// Called for a cell that is not empty. Answers why its text cannot be read, or nothing.
    std::function<std::string(const std::string& cell, Record& record)> read;
    /// Missing where the column is only read.
    std::function<std::string(const Record& record)> write;
    bool required = false;
};

template <class Record> using Columns = std::vector<Column<Record>>;

template <class Record> Column<Record> Required(Column<Record> column)
{
    column.required = true;
    return column;
}

template <class Record> std::vector<Title> TitlesOf(const Columns<Record>& columns)
{
    std::vector<Title> titles;
    for (const Column<Record>& column : columns)
        titles.push_back({column.name, column.required});
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
            if (column.required)
                line.Refuse(column.name, "deve ser informado.");
            continue;
        }
        if (const std::string why = column.read(cell, record); !why.empty())
            line.Refuse(column.name, cell, why);
    }
    return record;
}

} // namespace kova::data
