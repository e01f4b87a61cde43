#pragma once

#include "family/data/rows/row_statement.hpp"
#include "family/data/rows/rows.hpp"

namespace kova::family {

/// The prepared insertion of rows that the engine numbers.
template <class Row> class InsertNewRow : public RowStatement<Row> {
public:
    explicit InsertNewRow(Database& database) : RowStatement<Row>(database)
    {
        constexpr std::size_t BehindKey = 1;
        FetchInto(this->statement_, key_);
        this->TakeColumns(BehindKey);
        this->Prepare(std::string("insert into ") + Row::Table + " (" + this->ColumnNames(BehindKey)
                      + ") values (" + this->ColumnMarks(BehindKey) + ") returning " + this->KeyColumn());
    }

    /// An insertion that answers a row is over only when it has been walked to its end.
    Key Run(const Row& row)
    {
        this->row_ = row;
        Key given = 0;
        this->statement_.execute();
        while (this->statement_.fetch())
            given = key_;
        return given;
    }

private:
    Key key_ = 0;
};

/// Writes a row without regard to the key in it, in the transaction that is open, or in one of its own.
/// Answers the key that the engine gave. Fails as Database::With.
template <class Row> Key InsertNew(Database& database, const Row& row)
{
    return database.With<InsertNewRow<Row>>([&](InsertNewRow<Row>& insertion) { return insertion.Run(row); });
}

} // namespace kova::family
