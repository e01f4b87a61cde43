#pragma once

#include "family/registers/description/column.hpp"
#include "family/registers/description/register.hpp"

#include <algorithm>
#include <initializer_list>

namespace kova::family::registers {

/// A column of a list, as a record fills it.
template <class Record> struct ShownColumn {
    ListColumn column;
    std::function<std::string(const Record& record)> cell;
};

/// The columns of a list that show the fields of those labels. `columns` outlives them.
template <class Record>
std::vector<ShownColumn<Record>> ShownColumns(const Columns<Record>& columns,
                                              std::initializer_list<std::string_view> labels)
{
    std::vector<ShownColumn<Record>> shown;
    for (const std::string_view label : labels) {
        const auto column =
            std::ranges::find(columns, label, [](const Column<Record>& one) { return one.field.label; });
        const FieldKind kind = column->field.kind;
        const bool isNumber =
            kind == FieldKind::Code || kind == FieldKind::WholeNumber || kind == FieldKind::Money;
        shown.push_back({{label, isNumber, kind == FieldKind::Money},
                         [column](const Record& record) { return column->Show(record); }});
    }
    return shown;
}

/// Offers the active ones of the rows that `isMeant` takes, by their names.
template <class Row, class IsMeant> std::vector<Offer> OfferedNames(std::vector<Row> rows, IsMeant isMeant)
{
    std::ranges::sort(rows, {}, &Row::nomeDeBusca);
    std::vector<Offer> offers;
    for (const Row& row : rows) {
        if (row.situacao == 1 && isMeant(row))
            offers.push_back({row.nome, row.nome});
    }
    return offers;
}

} // namespace kova::family::registers
