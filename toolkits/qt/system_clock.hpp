#pragma once

#include "agenda/contracts/platform.hpp"

namespace kova::qt {

/// The desk's own clock, in local time.
class SystemClock : public Clock {
public:
    DateTime Now() const override;
    bool IsComputersOwn() const override { return true; }
    Double Timer() const override;
};

} // namespace kova::qt
