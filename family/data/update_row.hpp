#pragma once

#include "family/data/database.hpp"
#include "family/data/nullable.hpp"

namespace kova::family {

/// The prepared replacement of one row's columns. The key is the first of them.
template <class Row> class UpdateRow : public KeptStatement {
public:
    explicit UpdateRow(Database& database) : statement_(database.Session())
    {
        std::string assignments, key;
        statement_.alloc();
        row_.Columns([&](const char* column, auto& field) {
            if (key.empty())
                key = column;
            else
                assignments.append(assignments.empty() ? "" : ", ")
                    .append(column)
                    .append(" = :")
                    .append(column);
            Bind(column, field);
        });
        statement_.prepare(std::string("update ") + Row::Table + " set " + assignments + " where " + key
                           + " = :" + key);
        statement_.define_and_bind();
    }

    void Run(const Row& row)
    {
        row_ = row;
        statement_.execute(true);
    }

private:
    template <class T> void Bind(const char* name, T& field) { statement_.exchange(soci::use(field, name)); }
    template <class T> void Bind(const char* name, Nullable<T>& field)
    {
        statement_.exchange(soci::use(field.value, field.state, name));
    }

    Row row_;
    soci::statement statement_;
};

/// Writes every column of the row with that key, in the transaction that is open, or in one of its own.
/// Nothing happens where there is no such row. Fails as Database::With.
template <class Row> void Update(Database& database, const Row& row)
{
    database.With<UpdateRow<Row>>([&](UpdateRow<Row>& update) { update.Run(row); });
}

} // namespace kova::family
