#pragma once

#include "family/data/engine/dialect.hpp"
#include "family/history/filter.hpp"

#include <optional>
#include <utility>
#include <vector>

namespace kova::family::history {

/// A selection of lines and the texts that stand in for its parameters, by their names.
struct LineStatement {
    std::string text;
    std::vector<std::pair<std::string, std::string>> parameters;
};

/// What a column is to be, of those that lines are narrowed by.
struct ColumnValue {
    std::string column, value;
};

struct RowsOfTable {
    std::string table;
    std::vector<Key> keys;
};

/// What has to be looked for before the lines are.
struct Findings {
    /// Of a customer, also those of rows that have gone into it.
    std::vector<Key> customers;
    /// Rows that are gone, by their tables.
    std::vector<std::pair<std::string, Key>> gone;
    /// As the audit has them, of a user.
    std::vector<std::string> users;
    /// One of several columns that are narrowed, by which only few lines come into question; there may be
    /// none.
    std::optional<ColumnValue> rare;
    /// So many lines have the words of the text that it is quicker to go through the days than through these.
    bool hasManyOfText = false;
    /// All rows of the subject, where they are known; else the statement looks for them.
    std::optional<std::vector<RowsOfTable>> rows;
};

std::vector<ColumnValue> ColumnsOf(const Filter& filter);
/// Whether nearly all lines may have that value, so that no index has it: they are found among the days.
bool IsOfMost(const ColumnValue& one);
/// The condition on a line called `a`, as its index has it. The value is a parameter called as the column, or
/// the literal that is given.
std::string ConditionOf(const ColumnValue& one, const Dialect& dialect, const std::string& value = {});

/// Where a page ends.
struct Place {
    /// "yyyy-mm-dd"
    std::string day;
    Key code = 0;
};

/// The statement that selects `most` lines behind a place: codigo, momento, usuario, posto, tabela, chave,
/// operacao, antes and depois, in the order of the days, the last first.
LineStatement StatementOf(const Filter& filter, const Findings& findings, const std::optional<Place>& behind,
                          std::size_t most, const Dialect& dialect);

/// The statement that selects the numbers of the appointments that a line tells to have been booked for a
/// day.
LineStatement StatementOfMoved(const std::string& day, const Dialect& dialect);

/// The words of a text as an engine looks for their beginnings; empty where there is none.
std::string WordsSought(const std::string& text, const Dialect& dialect);

} // namespace kova::family::history
