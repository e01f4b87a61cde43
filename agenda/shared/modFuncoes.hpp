#pragma once

#include "agenda/contracts/value.hpp"

namespace kova::agenda {

/// Waits until that many seconds have passed on the platform's timer, with the screen alive. Across
/// midnight, when the timer falls back to 0, it waits until the timer has passed the start again by as much:
/// a whole day.
void Pausar(Double Segundos);

} // namespace kova::agenda
