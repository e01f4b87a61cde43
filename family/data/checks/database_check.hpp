#pragma once

#include "family/data/rows/table_layouts.hpp"

#include <string>
#include <vector>

namespace kova::family {

/// What a look through a whole database finds.
struct DatabaseReport {
    int version = 0;
    std::vector<TableCount> tables;
    /// Empty where the database is sound; else Portuguese texts.
    std::vector<std::string> problems;
};

/// Counts the tables' rows, and checks the file's structure, that a server holds the rows to their
/// references, and that every reference leads to a row.
/// Reads only. Fails with the text of CheckDataSource where the database cannot be opened.
DatabaseReport CheckDatabase(const std::string& path);

} // namespace kova::family
