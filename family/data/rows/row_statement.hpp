#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/nullable.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// Has a statement fetch its next column into a variable.
template <class T> void FetchInto(soci::statement& statement, T& variable)
{
    statement.exchange(soci::into(variable));
}
template <class T> void FetchInto(soci::statement& statement, Nullable<T>& variable)
{
    statement.exchange(soci::into(variable.value, variable.state));
}

/// Has a statement take a parameter from a variable.
template <class T> void TakeFrom(soci::statement& statement, T& variable, const char* parameter)
{
    statement.exchange(soci::use(variable, parameter));
}
template <class T> void TakeFrom(soci::statement& statement, Nullable<T>& variable, const char* parameter)
{
    statement.exchange(soci::use(variable.value, variable.state, parameter));
}

/// A prepared statement over the columns of one table's rows, bound to a row of its own. A row struct names
/// its table in Table and walks its columns in Columns(visit); the first of them is the key. The derived
/// class binds what it needs, in the order of the text, and prepares the text last. Parameters are called as
/// their columns.
template <class Row> class RowStatement : public KeptStatement {
protected:
    explicit RowStatement(Database& database) : statement_(database.Session())
    {
        statement_.alloc();
        row_.Columns([this](const char* column, auto&) { columns_.push_back(column); });
    }

    std::string KeyColumn() const { return columns_.front(); }

    /// What a selection ends with whose rows are locked (LocksRow in the row struct), or held (SharesRow),
    /// until the end of the transaction that is open.
    static std::string Lock(const Dialect& dialect)
    {
        if constexpr (requires { Row::LocksRow; })
            return dialect.lockRow;
        else if constexpr (requires { Row::SharesRow; })
            return dialect.shareRow;
        else
            return {};
    }

    /// The columns from the `first` on (0 is the key), each as `write` puts it, with commas between.
    template <class Write> std::string Columns(Write write, std::size_t first = 0) const
    {
        std::string list;
        for (std::size_t at = first; at < columns_.size(); ++at)
            list += (list.empty() ? "" : ", ") + write(std::string(columns_[at]));
        return list;
    }
    std::string ColumnNames(std::size_t first = 0) const
    {
        return Columns([](const std::string& column) { return column; }, first);
    }
    std::string ColumnMarks(std::size_t first = 0) const
    {
        return Columns([](const std::string& column) { return ":" + column; }, first);
    }

    void FetchColumns()
    {
        row_.Columns([this](const char*, auto& field) { FetchInto(statement_, field); });
    }
    void TakeColumns(std::size_t first = 0)
    {
        std::size_t at = 0;
        row_.Columns([&](const char* column, auto& field) {
            if (at++ >= first)
                TakeFrom(statement_, field, column);
        });
    }

    void Prepare(const std::string& text)
    {
        statement_.prepare(text);
        statement_.define_and_bind();
    }

    /// Runs it and answers all the rows that it finds.
    std::vector<Row> FetchRows()
    {
        std::vector<Row> rows;
        statement_.execute();
        while (statement_.fetch())
            rows.push_back(row_);
        return rows;
    }

    Row row_;
    soci::statement statement_;

private:
    std::vector<const char*> columns_;
};

} // namespace kova::family
