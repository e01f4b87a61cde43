#pragma once

#include "family/business/appointments/appointment_input.hpp"
#include "family/data/audit/author.hpp"

namespace kova::family::test {

inline const Author Somebody{"7", "Lia", "2026-11-20 09:04:05"};

/// A bath by Bia, of an hour from nine on, for somebody without a register.
AppointmentInput Bath(const Text& date);

} // namespace kova::family::test
