#pragma once

#include "family/registers/description/register.hpp"

/// The registers whose rows are few.
namespace kova::family::registers {

const Register& ServiceTypeRegister();
const Register& ServiceRegister();
const Register& EmployeeRegister();
const Register& SpeciesRegister();
const Register& BreedRegister();
const Register& HolidayRegister();
/// The shop itself: one row.
const Register& CompanyRegister();

} // namespace kova::family::registers
