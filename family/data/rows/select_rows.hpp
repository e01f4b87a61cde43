#pragma once

#include "family/data/rows/key_of_row.hpp"
#include "family/data/rows/page_size.hpp"
#include "family/data/rows/row_statement.hpp"

#include <functional>
#include <limits>

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
        std::vector<Row> page;
        this->statement_.execute();
        while (this->statement_.fetch())
            page.push_back(this->row_);
        return page;
    }

private:
    Key after_ = 0;
};

/// Every row of a table, ordered by its key, in pages that are never empty. What others write meanwhile may
/// be in a later page, unless a Snapshot is open. Fails as Database::With.
template <class Row>
void SelectPages(Database& database, const std::function<void(std::vector<Row>& page)>& visit)
{
    Key after = std::numeric_limits<Key>::min();
    for (bool goesOn = true; goesOn;) {
        std::vector<Row> page =
            database.With<ReadPage<Row>>([&](ReadPage<Row>& reading) { return reading.Run(after); });
        goesOn = page.size() == PageSize;
        if (page.empty())
            break;
        after = KeyOfRow(page.back());
        visit(page);
    }
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
