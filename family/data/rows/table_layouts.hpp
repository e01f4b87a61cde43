#pragma once

#include "family/data/engine/database.hpp"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kova::family {

/// A table that holds a shop's data. What the schema keeps about itself, its version and its counter of
/// changes, is not among them.
struct StoredTable {
    const char* name;
    /// Identifies a row.
    const char* key;
    /// Version of the schema that brought it.
    int since = 1;
    /// The engine numbers its rows.
    bool numbered = true;
};

/// All of the newest schema; a table comes after those that its rows refer to.
std::span<const StoredTable> StoredTables();
/// Those that the connected database has, which may be of an older schema. Fails with soci::soci_error.
std::vector<StoredTable> StoredTables(Database& database);
bool Has(const std::vector<StoredTable>& tables, std::string_view name);

/// A column whose values are keys of another table, where they are not Null.
struct Reference {
    const char* table;
    const char* column;
    const char* target;
    /// The target's key.
    const char* key;
};

/// All that the engines hold the rows of the newest schema to.
std::span<const Reference> References();
/// Those of the tables that the connected database has. Fails with soci::soci_error.
std::vector<Reference> References(Database& database);

struct Column {
    std::string name;
    /// A text; else a whole number.
    bool text = false;
};

/// The columns a table has in the connected database, in its own order. Fails with soci::soci_error.
std::vector<Column> ColumnsOf(Database& database, const char* table);

struct TableCount {
    std::string name;
    long long rows = 0;

    bool operator==(const TableCount&) const = default;
};

/// Rows of every table that is there, in the order of StoredTables. Fails with soci::soci_error.
std::vector<TableCount> CountRows(Database& database);

} // namespace kova::family
