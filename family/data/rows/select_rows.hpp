#pragma once

#include "family/data/rows/row_statement.hpp"

#include <functional>

namespace kova::family {

/// The prepared reading of a whole table, by its key.
template <class Row> class ReadRows : public RowStatement<Row> {
public:
    explicit ReadRows(Database& database) : RowStatement<Row>(database)
    {
        this->FetchColumns();
        this->Prepare("select " + this->ColumnNames() + " from " + Row::Table + " order by "
                      + this->KeyColumn());
    }

    void Run(const std::function<void(const Row&)>& visit)
    {
        this->statement_.execute();
        while (this->statement_.fetch())
            visit(this->row_);
    }
};

/// Every row of a table, ordered by its key, one at a time. Fails as Database::With.
template <class Row> void SelectRows(Database& database, const std::function<void(const Row&)>& visit)
{
    database.With<ReadRows<Row>>([&](ReadRows<Row>& reading) { reading.Run(visit); });
}

} // namespace kova::family
