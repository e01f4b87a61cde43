#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/rows.hpp"

#include <vector>

namespace kova::family {

/// Easter Sunday of a year of the Gregorian calendar.
Date EasterSunday(int year);

/// Brazil's national holidays: the fixed ones once, the movable ones for each year of the range.
std::vector<HolidayRow> NationalHolidays(int firstYear, int lastYear);

} // namespace kova::family
