#pragma once

#include "family/data/engine/nullable.hpp"
#include "family/data/rows/key_of_row.hpp"
#include "family/privacy/audited_values.hpp"
#include "family/privacy/personal_columns.hpp"

#include <string>

namespace kova::family::privacy {

/// What stands in the place of a name. A register's row keeps its code in it, so that no two of them are
/// called alike.
std::string NameOfNobody(std::string_view table, std::string_view column, Key key);

/// A field becomes what PersonalColumns says of its column.
inline void CleanField(Holds holds, const std::string& nobody, std::string& field)
{
    if (holds == Holds::Name && !field.empty())
        field = nobody;
    else if (holds == Holds::Text)
        field.clear();
}

inline void CleanField(Holds holds, const std::string&, Nullable<std::string>& field)
{
    if (holds == Holds::OptionalText)
        field = {};
}

template <class Number> void CleanField(Holds, const std::string&, Number&) { }

/// Takes from a row of a person what tells who it is. What is composed of other columns is left to the row's
/// own ways.
template <class Row> void CleanRow(Row& row)
{
    const Key key = KeyOfRow(row);
    row.Columns([&](const char* column, auto& field) {
        if (const auto holds = HoldsOf(Row::Table, column))
            CleanField(*holds, NameOfNobody(Row::Table, column, key), field);
    });
}

/// The same for values that the audit keeps of a row; a text of a column that is not listed goes as well.
void CleanValues(std::string_view table, Key key, AuditedValues& values);

} // namespace kova::family::privacy
