#pragma once

#include "family/data/database.hpp"
#include "family/data/nullable.hpp"
#include "family/data/rows.hpp"

namespace kova::family {

/// The prepared insertion of rows that the engine numbers. The key is the first of a row's columns.
template <class Row> class InsertNewRow : public KeptStatement {
public:
    explicit InsertNewRow(Database& database) : statement_(database.Session())
    {
        std::string columns, marks, key;
        statement_.alloc();
        statement_.exchange(soci::into(key_));
        row_.Columns([&](const char* column, auto& field) {
            if (key.empty()) {
                key = column;
                return;
            }
            columns.append(columns.empty() ? "" : ", ").append(column);
            marks.append(marks.empty() ? ":" : ", :").append(column);
            Bind(field);
        });
        statement_.prepare(std::string("insert into ") + Row::Table + " (" + columns + ") values (" + marks
                           + ") returning " + key);
        statement_.define_and_bind();
    }

    /// An insertion that answers a row is over only when it has been walked to its end.
    Key Run(const Row& row)
    {
        row_ = row;
        Key given = 0;
        statement_.execute();
        while (statement_.fetch())
            given = key_;
        return given;
    }

private:
    template <class T> void Bind(T& field) { statement_.exchange(soci::use(field)); }
    template <class T> void Bind(Nullable<T>& field)
    {
        statement_.exchange(soci::use(field.value, field.state));
    }

    Key key_ = 0;
    Row row_;
    soci::statement statement_;
};

/// Writes a row without regard to the key in it, in the transaction that is open, or in one of its own.
/// Answers the key that the engine gave. Fails as Database::With.
template <class Row> Key InsertNew(Database& database, const Row& row)
{
    return database.With<InsertNewRow<Row>>([&](InsertNewRow<Row>& insertion) { return insertion.Run(row); });
}

} // namespace kova::family
