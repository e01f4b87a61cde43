#pragma once

#include "family/data/database.hpp"
#include "family/data/nullable.hpp"
#include "family/data/rows.hpp"

#include <optional>

namespace kova::family {

/// The prepared reading of one row by its key, which is the first of the row's columns.
template <class Row> class ReadRow : public KeptStatement {
public:
    explicit ReadRow(Database& database) : statement_(database.Session())
    {
        std::string columns, key;
        statement_.alloc();
        row_.Columns([&](const char* column, auto& field) {
            if (key.empty())
                key = column;
            columns.append(columns.empty() ? "" : ", ").append(column);
            Bind(field);
        });
        statement_.exchange(soci::use(key_, "chave"));
        statement_.prepare("select " + columns + " from " + Row::Table + " where " + key + " = :chave"
                           + (LocksRow() ? database.GetDialect().lockRow : ""));
        statement_.define_and_bind();
    }

    /// Walks to the end, so that no read stays open behind it.
    std::optional<Row> Run(Key key)
    {
        key_ = key;
        std::optional<Row> found;
        statement_.execute();
        while (statement_.fetch())
            found = row_;
        return found;
    }

private:
    static constexpr bool LocksRow()
    {
        if constexpr (requires { Row::LocksRow; })
            return Row::LocksRow;
        return false;
    }

    template <class T> void Bind(T& field) { statement_.exchange(soci::into(field)); }
    template <class T> void Bind(Nullable<T>& field)
    {
        statement_.exchange(soci::into(field.value, field.state));
    }

    Key key_ = 0;
    Row row_;
    soci::statement statement_;
};

/// The row with that key; nothing where there is none. A row struct with LocksRow locks what it finds until
/// the end of the transaction that is open. Fails as Database::With.
template <class Row> std::optional<Row> FindByKey(Database& database, Key key)
{
    return database.With<ReadRow<Row>>([&](ReadRow<Row>& reading) { return reading.Run(key); });
}

} // namespace kova::family
