#pragma once

#include "family/data/rows/rows.hpp"

#include <array>
#include <string>
#include <vector>

namespace kova::family::test {

/// Where a desk counts: the member of clsAgenda that it writes, which is also the field that it reads, and by
/// how much. Two desks that count in the same field need different steps: two that type the same agree.
struct Counter {
    const char* field;
    int step;
};

/// The simplified appointments in whose texts two desks count.
struct Counting {
    std::string day;
    std::vector<Key> numbers;
    std::array<Counter, 2> desks;
    int rounds = 0;
};

/// What one desk has met with.
struct Counted {
    /// Edits that were answered with 0.
    int done = 0;
    /// Those of them that were made on a row which the other desk had changed since it was read.
    int merged = 0;
    /// Edits that were answered with 3; each was made again on what is stored now.
    int clashes = 0;
    /// Edits that were answered otherwise.
    int failed = 0;
};

/// Starts two processes that count at the same time on the same appointments of a data source. In each round
/// a desk selects the day, reads its number in every row and saves each row with a number that is higher,
/// the rest as it has read it. No connection of this process may be open. Answers once both are done.
std::array<Counted, 2> CountOnTwoDesks(const std::string& dataSource, const Counting& counting);

} // namespace kova::family::test
