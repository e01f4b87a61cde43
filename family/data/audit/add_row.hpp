#pragma once

#include "family/data/audit/audit.hpp"
#include "family/data/rows/insert_new_row.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/key_of_row.hpp"

namespace kova::family {

/// Writes a new row with its audit line, in the transaction that is open: under the row's own key, or under
/// one that the engine gives where it is 0. Answers the key. Fails as Database::With.
template <class Row> Key AddRow(Database& database, Row row, const Author& author)
{
    Key& key = KeyOfRow(row);
    if (key == 0)
        key = InsertNew(database, row);
    else
        Insert(database, row);
    AuditInsertion(database, author, Row::Table, key, ValuesOf(row));
    return key;
}

} // namespace kova::family
