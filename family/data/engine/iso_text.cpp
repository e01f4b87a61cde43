#include "family/data/engine/iso_text.hpp"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace kova::family {

std::string IsoDate(Date date)
{
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
    return text;
}

std::string IsoMoment(DateTime moment)
{
    char time[40];
    std::snprintf(time, sizeof time, " %02d:%02d:%02d", moment.time.hour, moment.time.minute,
                  moment.time.second);
    return IsoDate(moment.date) + time;
}

namespace {

int NumberAt(std::string_view text, std::size_t at, std::size_t digits)
{
    int number = 0;
    if (at + digits <= text.size())
        std::from_chars(text.data() + at, text.data() + at + digits, number);
    return number;
}

} // namespace

DateTime ReadIsoMoment(std::string_view isoDate, std::string_view time)
{
    return {{NumberAt(isoDate, 0, 4), NumberAt(isoDate, 5, 2), NumberAt(isoDate, 8, 2)},
            {NumberAt(time, 0, 2), NumberAt(time, 3, 2), 0}};
}

namespace {

/// `shape` has 9 for any digit; every other letter stands for itself.
bool HasShape(std::string_view text, std::string_view shape)
{
    return std::equal(text.begin(), text.end(), shape.begin(), shape.end(), [](char letter, char expected) {
        return expected == '9' ? letter >= '0' && letter <= '9' : letter == expected;
    });
}

} // namespace

bool IsIsoDate(std::string_view text)
{
    return HasShape(text, "9999-99-99") && ParseDate(ShownDate(text)).has_value();
}

bool IsIsoTime(std::string_view text)
{
    return HasShape(text, "99:99") && NumberAt(text, 0, 2) < 24 && NumberAt(text, 3, 2) < 60;
}

bool IsIsoMoment(std::string_view text)
{
    return HasShape(text, "9999-99-99 99:99:99") && IsIsoDate(text.substr(0, 10))
        && IsIsoTime(text.substr(11, 5)) && NumberAt(text, 17, 2) < 60;
}

bool IsMomentOfZone(std::string_view text)
{
    const std::string_view zone = text.substr(WithoutZone(text).size());
    const bool isZone = zone.empty() || HasShape(zone, "+99:99") || HasShape(zone, "-99:99");
    return isZone && IsIsoMoment(WithoutZone(text));
}

std::string_view WithoutZone(std::string_view isoMoment)
{
    constexpr std::size_t Length = std::string_view("yyyy-mm-dd hh:mm:ss").size();
    return isoMoment.substr(0, Length);
}

bool IsIsoEndTime(std::string_view text) { return IsIsoTime(text) || text == "24:00"; }

std::string ShownDate(std::string_view isoDate)
{
    if (isoDate.size() < 10)
        return std::string(isoDate);
    std::string shown(isoDate.substr(8, 2));
    shown += '/';
    shown += isoDate.substr(5, 2);
    shown += '/';
    shown += isoDate.substr(0, 4);
    return shown;
}

std::string ShownMoment(std::string_view isoMoment)
{
    if (isoMoment.size() < 10)
        return std::string(isoMoment);
    return ShownDate(isoMoment.substr(0, 10)) + std::string(WithoutZone(isoMoment).substr(10));
}

std::string ShownDuration(long long minutes)
{
    char text[48];
    std::snprintf(text, sizeof text, "%02lld:%02lld", minutes / 60, minutes % 60);
    return text;
}

} // namespace kova::family
