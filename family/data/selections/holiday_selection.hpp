#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/rows/rows.hpp"

#include <vector>

namespace kova::family {

class Database;

/// The registered holidays that fall on a date: those of every year on its day and month, and those of
/// that date alone. By name, then code. Fails as Database::With.
std::vector<HolidayRow> SelectHolidays(Database& database, Date date);

} // namespace kova::family
