#pragma once

#include "family/data/rows/insert_row.hpp"

#include <algorithm>
#include <span>

namespace kova::family {

/// How many rows of one table the statements below write at once.
inline constexpr std::size_t RowsWrittenTogether = 50;

/// The values of so many rows in one prepared statement.
template <class Row> class RowsTogether : public RowStatement<Row> {
protected:
    explicit RowsTogether(Database& database) : RowStatement<Row>(database), rows_(RowsWrittenTogether) { }

    /// Binds the columns from the `first` on (0 is the key) and prepares the insertion.
    void PrepareInsertion(std::size_t first = 0, const std::string& ending = {})
    {
        std::string values;
        for (std::size_t at = 0; at < rows_.size(); ++at) {
            const std::string number = std::to_string(at);
            std::size_t place = 0;
            rows_[at].Columns([&](const std::string& column, auto& field) {
                if (place++ >= first)
                    TakeFrom(this->statement_, field, (column + number).c_str());
            });
            values.append(at == 0 ? "(" : ", (")
                .append(
                    this->Columns([&](const std::string& column) { return ":" + column + number; }, first))
                .append(")");
        }
        this->Prepare(std::string("insert into ") + Row::Table + " (" + this->ColumnNames(first) + ") values "
                      + values + ending);
    }

    void Take(std::span<const Row> rows) { std::ranges::copy(rows, rows_.begin()); }

private:
    /// The statement is bound to their places.
    std::vector<Row> rows_;
};

/// The prepared insertion of so many rows with their keys.
template <class Row> class InsertTogether : public RowsTogether<Row> {
public:
    explicit InsertTogether(Database& database) : RowsTogether<Row>(database) { this->PrepareInsertion(); }

    void Run(std::span<const Row> rows)
    {
        this->Take(rows);
        this->statement_.execute(true);
    }
};

/// The same for rows that the engine numbers, in their order.
template <class Row> class InsertNewTogether : public RowsTogether<Row> {
public:
    explicit InsertNewTogether(Database& database) : RowsTogether<Row>(database)
    {
        FetchInto(this->statement_, key_);
        constexpr std::size_t BehindKey = 1;
        this->PrepareInsertion(BehindKey, " returning " + this->KeyColumn());
    }

    std::vector<Key> Run(std::span<const Row> rows)
    {
        this->Take(rows);
        std::vector<Key> keys;
        this->statement_.execute();
        while (this->statement_.fetch())
            keys.push_back(key_);
        // An engine may answer them in any order.
        std::ranges::sort(keys);
        return keys;
    }

private:
    Key key_ = 0;
};

/// Writes rows in the transaction that is open, in their order. Fails as Database::With.
template <class Row> void InsertAll(Database& database, std::span<const Row> rows)
{
    using Together = InsertTogether<Row>;
    for (; rows.size() >= RowsWrittenTogether; rows = rows.subspan(RowsWrittenTogether))
        database.With<Together>([&](Together& insertion) { insertion.Run(rows.first(RowsWrittenTogether)); });
    for (const Row& row : rows)
        Insert(database, row);
}

} // namespace kova::family
