#pragma once

#include "family/data/engine/fold_text.hpp"
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
        shown.push_back({{label, isNumber}, [column](const Record& record) { return column->Show(record); }});
    }
    return shown;
}

/// A record as a list shows it.
template <class Record> class ListTexts {
public:
    explicit ListTexts(std::vector<ShownColumn<Record>> shown) : shown_(std::move(shown))
    {
        for (const ShownColumn<Record>& one : shown_)
            columns_.push_back(one.column);
    }

    const std::vector<ListColumn>& Columns() const { return columns_; }

    std::string FirstOf(const Record& record) const { return shown_.front().cell(record); }

    Texts CellsOf(const Record& record) const
    {
        Texts cells;
        for (const ShownColumn<Record>& one : shown_)
            cells.push_back(one.cell(record));
        return cells;
    }

    /// What a search looks through: the folded cells, without numbers, a line each.
    std::string SearchedText(const Record& record) const
    {
        std::string text;
        for (const ShownColumn<Record>& one : shown_) {
            if (!one.column.number)
                text.append(FoldText(one.cell(record))).append("\n");
        }
        return text;
    }

private:
    std::vector<ShownColumn<Record>> shown_;
    std::vector<ListColumn> columns_;
};

} // namespace kova::family::registers
