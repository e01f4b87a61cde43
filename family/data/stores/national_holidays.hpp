#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/rows/rows.hpp"

#include <vector>

namespace kova::family {

/// Easter Sunday of a year of the Gregorian calendar.
Date EasterSunday(int year);

/// The years for which a new database gets its movable holidays.
inline constexpr int FirstHolidayYear = 2000;
inline constexpr int LastHolidayYear = 2100;

/// Brazil's national holidays: the fixed ones once, as a day and a month; the movable ones for each year of
/// the range, as dates. Codes count from 1.
std::vector<HolidayRow> NationalHolidays(int firstYear, int lastYear);

/// Days of a year on which many shops are closed although no law says so: Monday and Tuesday of Carnival,
/// and Corpus Christi. Without codes, by date.
std::vector<HolidayRow> UsualDaysOff(int year);

/// The day on which many shops open at noon.
Date AshWednesday(int year);

} // namespace kova::family
