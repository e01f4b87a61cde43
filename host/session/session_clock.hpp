#pragma once

#include "toolkits/qt/system_clock.hpp"

#include <chrono>
#include <cmath>
#include <optional>

namespace kova::host {

/// What a clock shows that has run on from `start`, past midnight to 00:00.
inline TimeOfDay RunOn(TimeOfDay start, std::chrono::seconds running)
{
    const std::chrono::seconds reached = std::chrono::hours(start.hour) + std::chrono::minutes(start.minute)
        + std::chrono::seconds(start.second) + running;
    const std::chrono::hh_mm_ss time(reached % std::chrono::days(1));
    return {static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count())};
}

/// Seconds since midnight.
inline Double SecondsOf(TimeOfDay time)
{
    constexpr int minutesPerHour = 60;
    constexpr int secondsPerMinute = 60;
    return (time.hour * minutesPerHour + time.minute) * secondsPerMinute + time.second;
}

/// The computer's clock. Where a day is given it is always that day. Where a time of day is given it is that
/// time when the session begins, and runs on from there. Where `pace` is not 1 it counts as many seconds in
/// one of the computer's, from the session's beginning on.
class SessionClock : public qt::SystemClock {
public:
    explicit SessionClock(std::optional<Date> day = {}, std::optional<TimeOfDay> start = {}, double pace = 1)
        : day_(day),
          start_(start),
          pace_(pace),
          timerAtStart_(start ? SecondsOf(*start) : SystemClock::Timer())
    {
    }

    DateTime Now() const override
    {
        const DateTime now = SystemClock::Now();
        return {day_.value_or(now.date),
                start_ ? RunOn(*start_, std::chrono::floor<std::chrono::seconds>(Running())) : now.time};
    }

    Double Timer() const override
    {
        constexpr Double secondsPerDay = 86400;
        return pace_ == 1 ? SystemClock::Timer()
                          : std::fmod(timerAtStart_ + Running().count(), secondsPerDay);
    }

    bool IsComputersOwn() const override { return !day_ && !start_ && pace_ == 1; }

private:
    std::chrono::duration<double> Running() const
    {
        return (std::chrono::steady_clock::now() - began_) * pace_;
    }

    std::optional<Date> day_;
    std::optional<TimeOfDay> start_;
    double pace_;
    Double timerAtStart_;
    std::chrono::steady_clock::time_point began_ = std::chrono::steady_clock::now();
};

} // namespace kova::host
