#pragma once

#include "family/data/rows/row_statement.hpp"

namespace kova::family {

/// The prepared insertion of one table's rows.
template <class Row> class InsertRow : public RowStatement<Row> {
public:
    explicit InsertRow(Database& database) : RowStatement<Row>(database)
    {
        this->TakeColumns();
        this->Prepare(std::string("insert into ") + Row::Table + " (" + this->ColumnNames() + ") values ("
                      + this->ColumnMarks() + ")");
    }

    void Run(const Row& row)
    {
        this->row_ = row;
        this->statement_.execute(true);
    }
};

/// A row that has to be written with more than itself says so.
template <class Row>
concept IsChained = requires
{
    Row::IsChained;
};

/// Writes a row in the transaction that is open, or in one of its own. Fails as Database::With.
template <class Row> void Insert(Database& database, const Row& row)
{
    static_assert(!IsChained<Row>, "its link would be missing");
    database.With<InsertRow<Row>>([&](InsertRow<Row>& insertion) { insertion.Run(row); });
}

} // namespace kova::family
