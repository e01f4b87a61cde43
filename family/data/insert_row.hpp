#pragma once

#include "family/data/database.hpp"
#include "family/data/nullable.hpp"

namespace kova::family {

/// The prepared insertion of one table's rows, bound to a row of its own.
template <class Row> class InsertRow : public KeptStatement {
public:
    explicit InsertRow(Database& database) : statement_(database.Session())
    {
        std::string columns, marks;
        statement_.alloc();
        row_.Columns([&](const char* column, auto& field) {
            columns.append(columns.empty() ? "" : ", ").append(column);
            marks.append(marks.empty() ? ":" : ", :").append(column);
            Bind(field);
        });
        statement_.prepare(std::string("insert into ") + Row::Table + " (" + columns + ") values (" + marks
                           + ")");
        statement_.define_and_bind();
    }

    void Run(const Row& row)
    {
        row_ = row;
        statement_.execute(true);
    }

private:
    template <class T> void Bind(T& field) { statement_.exchange(soci::use(field)); }
    template <class T> void Bind(Nullable<T>& field)
    {
        statement_.exchange(soci::use(field.value, field.state));
    }

    Row row_;
    soci::statement statement_;
};

/// Writes a row in the transaction that is open, or in one of its own. Fails as Database::With.
template <class Row> void Insert(Database& database, const Row& row)
{
    database.With<InsertRow<Row>>([&](InsertRow<Row>& insertion) { insertion.Run(row); });
}

} // namespace kova::family
