#pragma once

#include "family/data/rows/read_pages.hpp"
#include "family/data/rows/row_statement.hpp"

#include <functional>

namespace kova::family {

/// The prepared reading of one page of a table: of the rows behind a key.
template <class Row> class ReadPage : public RowStatement<Row> {
public:
    explicit ReadPage(Database& database) : RowStatement<Row>(database)
    {
        const std::string key = this->KeyColumn();
        this->FetchColumns();
        TakeFrom(this->statement_, after_, "apos");
        this->Prepare("select " + this->ColumnNames() + " from " + Row::Table + " where " + key
                      + " > :apos order by " + key + " limit " + std::to_string(PageSize));
    }

    std::vector<Row> Run(Key after)
    {
        after_ = after;
        return this->FetchRows();
    }

private:
    Key after_ = 0;
};

/// Every row of a table, ordered by its key, in pages that are never empty. What others write meanwhile may
/// be in a later page, unless a Snapshot is open. Fails as Database::With.
template <class Row>
void SelectPages(Database& database, const std::function<void(std::vector<Row>& page)>& visit)
{
    ReadPages<Row>(
        [&](Key after) {
            return database.With<ReadPage<Row>>([&](ReadPage<Row>& reading) { return reading.Run(after); });
        },
        visit);
}

/// The same, one row at a time.
template <class Row> void SelectRows(Database& database, const std::function<void(const Row&)>& visit)
{
    SelectPages<Row>(database, [&](const std::vector<Row>& page) {
        for (const Row& row : page)
            visit(row);
    });
}

} // namespace kova::family
