#pragma once

#include "family/registers/register.hpp"

namespace kova::family::registers {

const Register& CustomerRegister();
const Register& AnimalRegister();
const Register& ServiceTypeRegister();
const Register& ServiceRegister();
const Register& EmployeeRegister();
const Register& SpeciesRegister();
const Register& BreedRegister();
const Register& HolidayRegister();
/// The shop itself: one row.
const Register& CompanyRegister();
/// When the shop is open.
const Register& OpeningHoursRegister();
const Register& EmployeeHoursRegister();
const Register& AbsenceRegister();

/// All of them, in the order in which people look for them.
std::span<const Register* const> Registers();

/// The one of that name ("clientes"); nothing where there is none.
const Register* RegisterNamed(std::string_view name);

} // namespace kova::family::registers
