#pragma once

#include "family/data/rows/rows.hpp"

#include <string>
#include <vector>

namespace kova::family {

class Database;

/// When an appointment runs: dates "yyyy-mm-dd", times "hh:mm".
struct BookedTimeRow {
    std::string startDate, startTime, endDate, endTime;
};

struct BookedTimesFilter {
    Key employee = 0;
    /// One that is left out; 0 leaves out none.
    Key except = 0;
    /// "yyyy-mm-dd": those that have not ended before `from`, and that begin after `after` (all of them,
    /// where it is empty) and not after `until`.
    std::string from, after, until;
};

/// When an employee is booked, cancelled appointments left out, in no particular order.
std::vector<BookedTimeRow> FindBookedTimes(Database& database, const BookedTimesFilter& filter);

/// Its statement, for those who look at how the engine runs it. The parameters are funcionario, de, apos, ate
/// and exceto.
std::string BookedTimesStatement();

} // namespace kova::family
