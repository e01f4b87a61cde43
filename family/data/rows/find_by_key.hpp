#pragma once

#include "family/data/rows/row_statement.hpp"
#include "family/data/rows/rows.hpp"

#include <optional>

namespace kova::family {

/// The prepared reading of one row by its key.
template <class Row> class ReadRow : public RowStatement<Row> {
public:
    explicit ReadRow(Database& database) : RowStatement<Row>(database)
    {
        this->FetchColumns();
        TakeFrom(this->statement_, key_, "chave");
        this->Prepare("select " + this->ColumnNames() + " from " + Row::Table + " where " + this->KeyColumn()
                      + " = :chave" + this->Lock(database.GetDialect()));
    }

    /// Walks to the end, so that no read stays open behind it.
    std::optional<Row> Run(Key key)
    {
        key_ = key;
        std::optional<Row> found;
        this->statement_.execute();
        while (this->statement_.fetch())
            found = this->row_;
        return found;
    }

private:
    Key key_ = 0;
};

/// The row with that key; nothing where there is none. A row struct with LocksRow locks what it finds until
/// the end of the transaction that is open; one with SharesRow holds it, as others may. Fails as
/// Database::With.
template <class Row> std::optional<Row> FindByKey(Database& database, Key key)
{
    return database.With<ReadRow<Row>>([&](ReadRow<Row>& reading) { return reading.Run(key); });
}

} // namespace kova::family
