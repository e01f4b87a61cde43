#pragma once

#include "agenda/contracts/value.hpp"

#include <compare>
#include <optional>
#include <string_view>

namespace kova {

/// A day of the calendar, from 01/01/0100 to 31/12/9999.
struct Date {
    int year = 0;
    int month = 0;
    int day = 0;

    auto operator<=>(const Date&) const = default;
};

/// A time of day, in whole seconds.
struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    int second = 0;

    auto operator<=>(const TimeOfDay&) const = default;
};

struct DateTime {
    Date date;
    TimeOfDay time;

    auto operator<=>(const DateTime&) const = default;
};

inline constexpr std::string_view EmptyDateMask = "__/__/____";
inline constexpr std::string_view EmptyTimeMask = "__:__";

/// Days since 30/12/1899, the day 0 of the calendar arithmetic. What would lie outside the calendar fails
/// with 6.
Long DayNumber(Date date);
Date DateOfDayNumber(Long day);
Date AddDays(Date date, Long days);
DateTime AddMinutes(DateTime moment, Long minutes);
/// 1 Sunday to 7 Saturday.
int Weekday(Date date);
/// Fails with 5 where `month` is not from 1 to 12.
int DaysOfMonth(int year, int month);

/// Reads "dd/mm/yyyy"; day and month may have one digit. Nothing where the text is no such date.
std::optional<Date> ParseDate(std::string_view text);
/// Reads "hh:mm" or "hh:mm:ss"; the hour may have one digit. Nothing where the text is no such time.
std::optional<TimeOfDay> ParseTime(std::string_view text);
/// Reads "dd/mm/yyyy", "hh:mm[:ss]" or both with a blank between; a missing half is day 0 or midnight.
std::optional<DateTime> ParseDateTime(std::string_view text);

/// The same readings for a procedure that cannot go on without one: fail with 13.
Date RequireDate(std::string_view text);
TimeOfDay RequireTime(std::string_view text);
DateTime RequireDateTime(std::string_view text);

/// "dd/mm/yyyy"
Text FormatDate(Date date);
/// "hh:mm"
Text FormatTime(TimeOfDay time);

} // namespace kova
