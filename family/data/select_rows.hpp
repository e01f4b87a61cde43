#pragma once

#include "family/data/database.hpp"
#include "family/data/nullable.hpp"

#include <functional>

namespace kova::family {

/// The prepared reading of a whole table, by its key, which is the first of the row's columns.
template <class Row> class ReadRows : public KeptStatement {
public:
    explicit ReadRows(Database& database) : statement_(database.Session())
    {
        std::string columns, key;
        statement_.alloc();
        row_.Columns([&](const char* column, auto& field) {
            if (key.empty())
                key = column;
            columns.append(columns.empty() ? "" : ", ").append(column);
            Bind(field);
        });
        statement_.prepare("select " + columns + " from " + Row::Table + " order by " + key);
        statement_.define_and_bind();
    }

    void Run(const std::function<void(const Row&)>& visit)
    {
        statement_.execute();
        while (statement_.fetch())
            visit(row_);
    }

private:
    template <class T> void Bind(T& field) { statement_.exchange(soci::into(field)); }
    template <class T> void Bind(Nullable<T>& field)
    {
        statement_.exchange(soci::into(field.value, field.state));
    }

    Row row_;
    soci::statement statement_;
};

/// Every row of a table, ordered by its key, one at a time. Fails as Database::With.
template <class Row> void SelectRows(Database& database, const std::function<void(const Row&)>& visit)
{
    database.With<ReadRows<Row>>([&](ReadRows<Row>& reading) { reading.Run(visit); });
}

} // namespace kova::family
