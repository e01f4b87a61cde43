#pragma once

#include "family/data/rows/read_pages.hpp"
#include "family/data/rows/row_statement.hpp"

#include <algorithm>
#include <functional>
#include <limits>

namespace kova::family {

/// The prepared reading of one page of a table: of the rows behind a key that fulfil a condition, where the
/// row struct has one in Condition. Goes through the table by the key: a condition that an index would be
/// taken for has to be written so that none is.
template <class Row> class ReadPage : public RowStatement<Row> {
public:
    explicit ReadPage(Database& database) : RowStatement<Row>(database)
    {
        const std::string key = this->KeyColumn();
        this->FetchColumns();
        TakeFrom(this->statement_, after_, "apos");
        this->Prepare("select " + this->ColumnNames() + " from " + Row::Table + " where " + ConditionAnd()
                      + key + " > :apos order by " + key + " limit " + std::to_string(PageSize));
    }

    std::vector<Row> Run(Key after)
    {
        after_ = after;
        return this->FetchRows();
    }

private:
    static std::string ConditionAnd()
    {
        if constexpr (requires { Row::Condition; })
            return std::string(Row::Condition) + " and ";
        return {};
    }

    Key after_ = 0;
};

/// Every row of a table behind a key, or of those that fulfil Row::Condition, ordered by its key, in pages
/// that are never empty. What others write meanwhile may be in a later page, unless a Snapshot is open. Fails
/// as Database::With.
template <class Row>
void SelectPagesBehind(Database& database, Key behind,
                       const std::function<void(std::vector<Row>& page)>& visit)
{
    ReadPages<Row>(
        [&](Key after) {
            return database.With<ReadPage<Row>>(
                [&](ReadPage<Row>& reading) { return reading.Run(std::max(after, behind)); });
        },
        visit);
}

/// From the first row on.
template <class Row>
void SelectPages(Database& database, const std::function<void(std::vector<Row>& page)>& visit)
{
    SelectPagesBehind<Row>(database, std::numeric_limits<Key>::min(), visit);
}

/// The same, one row at a time.
template <class Row>
void SelectRowsBehind(Database& database, Key behind, const std::function<void(const Row&)>& visit)
{
    SelectPagesBehind<Row>(database, behind,
                           [&](const std::vector<Row>& page) { std::ranges::for_each(page, visit); });
}

template <class Row> void SelectRows(Database& database, const std::function<void(const Row&)>& visit)
{
    SelectRowsBehind<Row>(database, std::numeric_limits<Key>::min(), visit);
}

} // namespace kova::family
