#pragma once

#include "toolkits/qt/system_clock.hpp"

#include <chrono>
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

/// The computer's clock. Where a day is given it is always that day. Where a time of day is given it is that
/// time when the session begins, and runs on from there.
class SessionClock : public qt::SystemClock {
public:
    explicit SessionClock(std::optional<Date> day = {}, std::optional<TimeOfDay> start = {})
        : day_(day), start_(start)
    {
    }

    DateTime Now() const override
    {
        const DateTime now = SystemClock::Now();
        return {day_.value_or(now.date), start_ ? RunOn(*start_, Running()) : now.time};
    }

private:
    std::chrono::seconds Running() const
    {
        return std::chrono::floor<std::chrono::seconds>(std::chrono::steady_clock::now() - began_);
    }

    std::optional<Date> day_;
    std::optional<TimeOfDay> start_;
    std::chrono::steady_clock::time_point began_ = std::chrono::steady_clock::now();
};

} // namespace kova::host
