#pragma once

#include "toolkits/qt/system_clock.hpp"

#include <optional>

namespace kova::host {

/// The computer's clock. Where a day is given it is always that day, with the running time.
class SessionClock : public qt::SystemClock {
public:
    explicit SessionClock(std::optional<Date> day = {}) : day_(day) { }

    DateTime Now() const override
    {
        const DateTime now = SystemClock::Now();
        return {day_.value_or(now.date), now.time};
    }

private:
    std::optional<Date> day_;
};

} // namespace kova::host
