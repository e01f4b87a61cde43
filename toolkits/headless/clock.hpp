#pragma once

#include "agenda/contracts/platform.hpp"

namespace kova::headless {

/// A clock that moves only when it is told to. Starts at 20/11/2026 10:15:00.
class FrozenClock final : public Clock {
public:
    DateTime Now() const override;
    Double Timer() const override;

    void Set(const DateTime& moment);
    /// Seconds, with a fraction; a negative number is ignored. Stops where the calendar ends.
    void Advance(Double seconds);

    /// Between these two the Timer goes on counting past midnight, so that a wait that compares it with
    /// a later value ends. They nest.
    void HoldTimer();
    void ReleaseTimer();

private:
    Long day_ = DayNumber({2026, 11, 20});
    /// Since midnight of `day_`.
    Double seconds_ = 10 * 3600 + 15 * 60;
    int holds_ = 0;
    Long dayOfHold_ = 0;
};

} // namespace kova::headless
