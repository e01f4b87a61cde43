#pragma once

#include "family/data/rows/insert_row.hpp"

#include <algorithm>
#include <span>

namespace kova::family {

/// The prepared insertion of so many rows of one table with one statement.
template <class Row> class InsertTogether : public RowStatement<Row> {
public:
    static constexpr std::size_t Count = 50;

    explicit InsertTogether(Database& database) : RowStatement<Row>(database), rows_(Count)
    {
        std::string values;
        for (std::size_t at = 0; at < rows_.size(); ++at) {
            const std::string number = std::to_string(at);
            rows_[at].Columns([&](const std::string& column, auto& field) {
                TakeFrom(this->statement_, field, (column + number).c_str());
            });
            values.append(at == 0 ? "(" : ", (")
                .append(this->Columns([&](const std::string& column) { return ":" + column + number; }))
                .append(")");
        }
        this->Prepare(std::string("insert into ") + Row::Table + " (" + this->ColumnNames() + ") values "
                      + values);
    }

    void Run(std::span<const Row> rows)
    {
        std::ranges::copy(rows, rows_.begin());
        this->statement_.execute(true);
    }

private:
    /// The statement is bound to their places.
    std::vector<Row> rows_;
};

/// Writes rows in the transaction that is open, in their order. Fails as Database::With.
template <class Row> void InsertAll(Database& database, std::span<const Row> rows)
{
    using Together = InsertTogether<Row>;
    for (; rows.size() >= Together::Count; rows = rows.subspan(Together::Count))
        database.With<Together>([&](Together& insertion) { insertion.Run(rows.first(Together::Count)); });
    for (const Row& row : rows)
        Insert(database, row);
}

} // namespace kova::family
