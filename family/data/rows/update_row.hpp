#pragma once

#include "family/data/rows/row_statement.hpp"

namespace kova::family {

/// The prepared replacement of one row's columns.
template <class Row> class UpdateRow : public RowStatement<Row> {
public:
    explicit UpdateRow(Database& database) : RowStatement<Row>(database)
    {
        constexpr std::size_t BehindKey = 1;
        const auto assignment = [](const std::string& column) { return column + " = :" + column; };
        this->TakeColumns();
        this->Prepare(std::string("update ") + Row::Table + " set " + this->Columns(assignment, BehindKey)
                      + " where " + assignment(this->KeyColumn()));
    }

    void Run(const Row& row)
    {
        this->row_ = row;
        this->statement_.execute(true);
    }
};

/// Writes every column of the row with that key, in the transaction that is open, or in one of its own.
/// Nothing happens where there is no such row. Fails as Database::With.
template <class Row> void Update(Database& database, const Row& row)
{
    database.With<UpdateRow<Row>>([&](UpdateRow<Row>& update) { update.Run(row); });
}

} // namespace kova::family
