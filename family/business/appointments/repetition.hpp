#pragma once

#include "family/business/time_span.hpp"

#include <vector>

namespace kova::family {

/// The most repetitions of one booking.
inline constexpr Long MostRepetitions = 999;

/// The span and `repetitions` more of it, hours and length kept: every 7 days, every 14 days, or every month
/// on the same day, which is the month's last where it has no such day. `frequency` is that of
/// AppointmentInput; with another one there is no repetition. Fails with 5 beyond MostRepetitions.
std::vector<TimeSpan> Repeated(const TimeSpan& first, Long repetitions, Integer frequency);

} // namespace kova::family
