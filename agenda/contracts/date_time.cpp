#include "agenda/contracts/date_time.hpp"

#include <array>
#include <cstdio>

namespace kova {

namespace {

constexpr int FirstYear = 100;
constexpr int LastYear = 9999;
constexpr Long MinutesOfDay = 24 * 60;

bool IsLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

/// Days since 01/03/0000. Years are taken to begin in March, so that the leap day is the last of its
/// year and each month, counted from 0, begins (153 * month + 2) / 5 days after the year's beginning.
constexpr Long DaysSinceMarch(Date date)
{
    const int year = date.month > 2 ? date.year : date.year - 1;
    const int month = (date.month + 9) % 12;
    return 365 * year + year / 4 - year / 100 + year / 400 + (153 * month + 2) / 5 + date.day - 1;
}

constexpr Long DayZero = DaysSinceMarch({1899, 12, 30});
constexpr Long FirstDay = DaysSinceMarch({FirstYear, 1, 1}) - DayZero;
constexpr Long LastDay = DaysSinceMarch({LastYear, 12, 31}) - DayZero;

Date DateOfCheckedDay(std::int64_t day)
{
    if (day < FirstDay || day > LastDay)
        throw Failure(FailureNumber::Overflow);
    return DateOfDayNumber(static_cast<Long>(day));
}

} // namespace

Long DayNumber(Date date) { return DaysSinceMarch(date) - DayZero; }

Date DateOfDayNumber(Long day)
{
    if (day < FirstDay || day > LastDay)
        throw Failure(FailureNumber::Overflow);
    constexpr Long daysOf400Years = 146097;
    const Long days = day + DayZero;
    const Long dayOfEra = days % daysOf400Years;
    // What the leap days before it have added is taken out, so that each year has 365 days.
    const Long year = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const Long dayOfYear = dayOfEra - (365 * year + year / 4 - year / 100);
    const Long month = (5 * dayOfYear + 2) / 153;
    Date date;
    date.day = dayOfYear - (153 * month + 2) / 5 + 1;
    date.month = month < 10 ? month + 3 : month - 9;
    date.year = days / daysOf400Years * 400 + year + (date.month <= 2 ? 1 : 0);
    return date;
}

Date AddDays(Date date, Long days) { return DateOfCheckedDay(std::int64_t(DayNumber(date)) + days); }

DateTime AddMinutes(DateTime moment, Long minutes)
{
    std::int64_t total = std::int64_t(moment.time.hour) * 60 + moment.time.minute + minutes;
    std::int64_t days = total / MinutesOfDay;
    total %= MinutesOfDay;
    if (total < 0) {
        total += MinutesOfDay;
        --days;
    }
    const Date date = DateOfCheckedDay(DayNumber(moment.date) + days);
    return {date, {static_cast<int>(total / 60), static_cast<int>(total % 60), moment.time.second}};
}

int Weekday(Date date)
{
    // Day 0 was a Saturday; 7 before the remainder keeps it positive.
    return ((DayNumber(date) % 7) + 7 + 6) % 7 + 1;
}

int DaysOfMonth(int year, int month)
{
    static constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12)
        throw Failure(FailureNumber::InvalidArgument);
    return month == 2 && IsLeapYear(year) ? 29 : days[static_cast<std::size_t>(month - 1)];
}

namespace {

/// Takes a number of `fewest` to `most` digits off the text's beginning.
bool TakeDigits(std::string_view& text, std::size_t fewest, std::size_t most, int& number)
{
    std::size_t count = 0;
    number = 0;
    for (; count < most && count < text.size() && text[count] >= '0' && text[count] <= '9'; ++count)
        number = 10 * number + (text[count] - '0');
    text.remove_prefix(count);
    return count >= fewest;
}

bool TakeMark(std::string_view& text, char mark)
{
    if (text.empty() || text.front() != mark)
        return false;
    text.remove_prefix(1);
    return true;
}

bool IsDate(Date date)
{
    return date.year >= FirstYear && date.year <= LastYear && date.month >= 1 && date.month <= 12
        && date.day >= 1 && date.day <= DaysOfMonth(date.year, date.month);
}

bool IsTime(TimeOfDay time) { return time.hour < 24 && time.minute < 60 && time.second < 60; }

template <class Moment> Moment Require(const std::optional<Moment>& moment)
{
    if (!moment)
        throw Failure(FailureNumber::TypeMismatch);
    return *moment;
}

} // namespace

std::optional<Date> ParseDate(std::string_view text)
{
    Date date;
    const bool read = TakeDigits(text, 1, 2, date.day) && TakeMark(text, '/')
        && TakeDigits(text, 1, 2, date.month) && TakeMark(text, '/') && TakeDigits(text, 4, 4, date.year)
        && text.empty();
    if (!read || !IsDate(date))
        return std::nullopt;
    return date;
}

std::optional<TimeOfDay> ParseTime(std::string_view text)
{
    TimeOfDay time;
    bool read =
        TakeDigits(text, 1, 2, time.hour) && TakeMark(text, ':') && TakeDigits(text, 2, 2, time.minute);
    if (read && !text.empty())
        read = TakeMark(text, ':') && TakeDigits(text, 2, 2, time.second) && text.empty();
    if (!read || !IsTime(time))
        return std::nullopt;
    return time;
}

std::optional<DateTime> ParseDateTime(std::string_view text)
{
    if (const auto date = ParseDate(text))
        return DateTime{*date, {}};
    if (const auto time = ParseTime(text))
        return DateTime{DateOfDayNumber(0), *time};
    const auto blank = text.find(' ');
    if (blank == std::string_view::npos)
        return std::nullopt;
    const auto date = ParseDate(text.substr(0, blank));
    const auto time = ParseTime(text.substr(blank + 1));
    if (!date || !time)
        return std::nullopt;
    return DateTime{*date, *time};
}

Date RequireDate(std::string_view text) { return Require(ParseDate(text)); }
TimeOfDay RequireTime(std::string_view text) { return Require(ParseTime(text)); }
DateTime RequireDateTime(std::string_view text) { return Require(ParseDateTime(text)); }

Text FormatDate(Date date)
{
    std::array<char, 40> buffer;
    std::snprintf(buffer.data(), buffer.size(), "%02d/%02d/%04d", date.day, date.month, date.year);
    return buffer.data();
}

Text FormatTime(TimeOfDay time)
{
    std::array<char, 40> buffer;
    std::snprintf(buffer.data(), buffer.size(), "%02d:%02d", time.hour, time.minute);
    return buffer.data();
}

} // namespace kova
