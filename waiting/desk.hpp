#pragma once

#include "agenda/contracts/date_time.hpp"
#include "registers/desk.hpp"

#include <functional>

namespace kova::waiting {

/// What the waiting list works with: the shop's database and who writes, and the clock.
struct Desk {
    registers::Desk data;
    std::function<DateTime()> now;
};

} // namespace kova::waiting
