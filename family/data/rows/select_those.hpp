#pragma once

#include "family/data/rows/read_pages.hpp"
#include "family/data/rows/row_statement.hpp"

#include <algorithm>
#include <functional>

namespace kova::family {

/// The prepared reading of one page of the rows that fulfil a condition, which the row struct has in
/// Condition.
template <class Row> class ReadPageOfThose : public RowStatement<Row> {
public:
    explicit ReadPageOfThose(Database& database) : RowStatement<Row>(database)
    {
        const std::string key = this->KeyColumn();
        this->FetchColumns();
        TakeFrom(this->statement_, after_, "apos");
        this->Prepare("select " + this->ColumnNames() + " from " + Row::Table + " where " + Row::Condition
                      + " and " + key + " > :apos order by " + key + " limit " + std::to_string(PageSize));
    }

    std::vector<Row> Run(Key after)
    {
        after_ = after;
        return this->FetchRows();
    }

private:
    Key after_ = 0;
};

/// The rows behind a key that fulfil Row::Condition, ordered by their key. Goes through the table by the key:
/// a condition that an index would be taken for has to be written so that none is. Fails as Database::With.
template <class Row>
void SelectThose(Database& database, Key behind, const std::function<void(const Row&)>& visit)
{
    using Reading = ReadPageOfThose<Row>;
    ReadPages<Row>(
        [&](Key after) {
            return database.With<Reading>(
                [&](Reading& reading) { return reading.Run(std::max(after, behind)); });
        },
        [&](const std::vector<Row>& page) { std::for_each(page.begin(), page.end(), visit); });
}

} // namespace kova::family
