#include "agenda/contracts/date_time.hpp"

#include <array>
#include <chrono>
#include <cstdio>

namespace kova {

namespace chrono = std::chrono;

namespace {

constexpr int FirstYear = 100;
constexpr int LastYear = 9999;
constexpr Long MinutesOfDay = 24 * 60;

constexpr chrono::sys_days DayOf(Date date)
{
    return chrono::year(date.year) / chrono::month(static_cast<unsigned>(date.month))
        / chrono::day(static_cast<unsigned>(date.day));
}

constexpr chrono::sys_days DayZero = DayOf({1899, 12, 30});

constexpr Long NumberOf(chrono::sys_days day) { return static_cast<Long>((day - DayZero).count()); }

constexpr Long FirstDay = NumberOf(DayOf({FirstYear, 1, 1}));
constexpr Long LastDay = NumberOf(DayOf({LastYear, 12, 31}));

Date DateOfCheckedDay(std::int64_t day)
{
    if (day < FirstDay || day > LastDay)
        throw Failure(FailureNumber::Overflow);
    return DateOfDayNumber(static_cast<Long>(day));
}

} // namespace

Long DayNumber(Date date) { return NumberOf(DayOf(date)); }

Date DateOfDayNumber(Long day)
{
    if (day < FirstDay || day > LastDay)
        throw Failure(FailureNumber::Overflow);
    const chrono::year_month_day date(DayZero + chrono::days(day));
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
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

int Weekday(Date date) { return static_cast<int>(chrono::weekday(DayOf(date)).c_encoding()) + 1; }

int DaysOfMonth(int year, int month)
{
    if (month < 1 || month > 12)
        throw Failure(FailureNumber::InvalidArgument);
    const auto end = chrono::year(year) / chrono::month(static_cast<unsigned>(month)) / chrono::last;
    return static_cast<int>(static_cast<unsigned>(end.day()));
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
