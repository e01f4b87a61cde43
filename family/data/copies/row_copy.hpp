#pragma once

#include "family/data/engine/long_work.hpp"
#include "family/data/rows/table_layouts.hpp"

#include <cstdint>

namespace kova::family {

/// A table's rows and a sum over all their values. Two tables with the same rows have the same sum, in
/// whatever order and on whatever engine they are kept.
struct TableSum {
    std::string name;
    long long rows = 0;
    std::uint64_t sum = 0;

    bool operator==(const TableSum&) const = default;
};

/// Reads every table. Fails with soci::soci_error, or with Interrupted where a stop is asked for.
std::vector<TableSum> SumTables(Database& database, const LongWork& work = {});

/// Writes every row that `source` has at one moment into the empty tables of `target`, in its open
/// transaction, and has the numbers go on there where they are. Both are of the same schema. Answers what
/// was read. Fails with soci::soci_error, or with Interrupted where a stop is asked for.
std::vector<TableSum> CopyRows(Database& source, Database& target, const LongWork& work);

} // namespace kova::family
