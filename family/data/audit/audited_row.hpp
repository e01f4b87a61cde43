#pragma once

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audit_lines.hpp"
#include "family/data/engine/nullable.hpp"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace kova::family {

/// Each writes what the audit keeps of a column into the row's field. False where the field cannot hold it.
inline bool TakeColumn(const std::optional<std::string>& kept, std::string& field)
{
    field = kept.value_or("");
    return kept.has_value();
}

template <class Number> bool TakeColumn(const std::optional<std::string>& kept, Number& field)
{
    if (!kept)
        return false;
    const char* const end = kept->data() + kept->size();
    const auto read = std::from_chars(kept->data(), end, field);
    return read.ec == std::errc() && read.ptr == end;
}

template <class T> bool TakeColumn(const std::optional<std::string>& kept, Nullable<T>& field)
{
    field = {};
    if (!kept)
        return true;
    T value{};
    if (!TakeColumn(kept, value))
        return false;
    field = std::move(value);
    return true;
}

/// Writes the columns that the audit keeps over those of the row; the row's others stay. Answers how many
/// were written; nothing where one of them does not fit.
template <class Row> std::optional<int> TakeColumns(const AuditedColumns& columns, Row& row)
{
    int written = 0;
    bool fit = true;
    row.Columns([&](const char* column, auto& field) {
        const auto kept = columns.find(column);
        if (kept == columns.end())
            return;
        fit = TakeColumn(kept->second, field) && fit;
        ++written;
    });
    return fit ? std::optional(written) : std::nullopt;
}

inline void EmptyField(std::string& field) { field.clear(); }
template <class Number> void EmptyField(Number&) { }
template <class T> void EmptyField(Nullable<T>& field) { field = {}; }

/// The same of a line that keeps a whole row: what it leaves out is empty in the row. Numbers, and who wrote
/// the row and when (AuthorColumns), stay as they are there where it has none.
template <class Row> std::optional<int> TakeRow(const AuditedColumns& columns, Row& row)
{
    row.Columns([&](std::string_view column, auto& field) {
        if (!columns.contains(column) && std::ranges::count(AuthorColumns, column) == 0)
            EmptyField(field);
    });
    return TakeColumns(columns, row);
}

} // namespace kova::family
