#pragma once

#include "family/data/engine/fold_text.hpp"
#include "family/registers/description/shown_columns.hpp"

namespace kova::family::registers {

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
