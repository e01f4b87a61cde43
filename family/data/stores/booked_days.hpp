#pragma once

#include "family/data/stores/booked_times.hpp"

namespace kova::family {

/// When somebody is booked.
struct BookedEmployeeRow {
    Key employee = 0;
    BookedTimeRow times;
};

/// When everybody is booked on days "yyyy-mm-dd", both included: cancelled appointments left out,
/// in no particular order. Fails as Database::With.
std::vector<BookedEmployeeRow> FindBookedDays(Database& database, const std::string& from,
                                              const std::string& until);

/// Its statement, for those who look at how the engine runs it. The parameters are de and ate.
std::string BookedDaysStatement();

} // namespace kova::family
