#pragma once

#include "family/registers/description/register.hpp"

/// The registers that tell when the shop is open and who is at work.
namespace kova::family::registers {

/// When the shop is open.
const Register& OpeningHoursRegister();
const Register& EmployeeHoursRegister();
const Register& AbsenceRegister();

} // namespace kova::family::registers
