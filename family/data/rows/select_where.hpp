#pragma once

#include "family/data/rows/read_pages.hpp"
#include "family/data/rows/row_statement.hpp"

#include <algorithm>
#include <functional>
#include <set>

namespace kova::family {

/// The prepared reading of the rows that have one of several values in a column, a page of them at a time. A
/// row struct names the column in FoundBy, where it is not its key, and may say in ValuesAtOnce how many
/// values one statement looks for.
template <class Row, class Value> class ReadPageWhere : public RowStatement<Row> {
public:
    static constexpr std::size_t ValuesAtOnce()
    {
        if constexpr (requires { Row::ValuesAtOnce; })
            return Row::ValuesAtOnce;
        return 500;
    }

    explicit ReadPageWhere(Database& database) : RowStatement<Row>(database), values_(ValuesAtOnce())
    {
        this->FetchColumns();
        std::string marks;
        for (std::size_t at = 0; at < values_.size(); ++at) {
            const std::string mark = "v" + std::to_string(at);
            TakeFrom(this->statement_, values_[at], mark.c_str());
            marks += (at == 0 ? ":" : ", :") + mark;
        }
        TakeFrom(this->statement_, after_, "apos");
        // With the sign before it the engine does not look for rows by their key, but by the values.
        const std::string key = "+" + this->KeyColumn();
        this->Prepare("select " + this->ColumnNames() + " from " + Row::Table + " where " + SoughtColumn()
                      + " in (" + marks + ") and " + key + " > :apos order by " + key + " limit "
                      + std::to_string(PageSize) + this->Lock(database.GetDialect()));
    }

    /// At least one value, and ValuesAtOnce at most.
    std::vector<Row> Run(const std::vector<Value>& values, Key after)
    {
        const auto end = std::copy(values.begin(), values.end(), values_.begin());
        std::fill(end, values_.end(), values.back());
        after_ = after;
        return this->FetchRows();
    }

private:
    std::string SoughtColumn() const
    {
        if constexpr (requires { Row::FoundBy; })
            return Row::FoundBy;
        return this->KeyColumn();
    }

    /// Statements are bound to their places.
    std::vector<Value> values_;
    Key after_ = 0;
};

/// A group of values that one statement looks for. Fails as Database::With.
template <class Row, class Value>
void SelectGroup(Database& database, const std::vector<Value>& group,
                 const std::function<void(const Row&)>& visit)
{
    using Reading = ReadPageWhere<Row, Value>;
    ReadPages<Row>(
        [&](Key after) {
            return database.With<Reading>([&](Reading& reading) { return reading.Run(group, after); });
        },
        [&](const std::vector<Row>& page) { std::for_each(page.begin(), page.end(), visit); });
}

/// The rows that have one of the values in the column that Row is found by; ordered by their key for each of
/// the groups in which the values are looked for. Rows are locked as FindByKey does. Fails as Database::With.
template <class Row, class Value>
void SelectWhere(Database& database, const std::set<Value>& values,
                 const std::function<void(const Row&)>& visit)
{
    std::vector<Value> group;
    for (const Value& value : values) {
        group.push_back(value);
        if (group.size() < ReadPageWhere<Row, Value>::ValuesAtOnce())
            continue;
        SelectGroup<Row>(database, group, visit);
        group.clear();
    }
    if (!group.empty())
        SelectGroup<Row>(database, group, visit);
}

} // namespace kova::family
