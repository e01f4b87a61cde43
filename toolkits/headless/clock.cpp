#include "toolkits/headless/clock.hpp"

#include <algorithm>
#include <cmath>

namespace kova::headless {

namespace {

constexpr Double SecondsOfDay = 86400;
constexpr Date LastDay{9999, 12, 31};

} // namespace

DateTime FrozenClock::Now() const
{
    const auto second = static_cast<int>(std::floor(seconds_));
    return {DateOfDayNumber(day_), {second / 3600, second / 60 % 60, second % 60}};
}

Double FrozenClock::Timer() const
{
    return holds_ == 0 ? seconds_ : seconds_ + static_cast<Double>(day_ - dayOfHold_) * SecondsOfDay;
}

void FrozenClock::Set(const DateTime& moment)
{
    day_ = DayNumber(moment.date);
    seconds_ = moment.time.hour * 3600 + moment.time.minute * 60 + moment.time.second;
}

void FrozenClock::Advance(Double seconds)
{
    if (!(seconds > 0))
        return;
    const Double total = seconds_ + seconds;
    const Double daysLeft = DayNumber(LastDay) - day_;
    const Double days = std::min(std::floor(total / SecondsOfDay), daysLeft);
    day_ += static_cast<Long>(days);
    // Beyond the calendar's last day there is only that day's last moment.
    seconds_ = std::min(total - days * SecondsOfDay, std::nextafter(SecondsOfDay, 0));
}

void FrozenClock::HoldTimer()
{
    if (holds_++ == 0)
        dayOfHold_ = day_;
}

void FrozenClock::ReleaseTimer()
{
    if (holds_ > 0)
        --holds_;
}

} // namespace kova::headless
