#pragma once

#include "family/csv/register.hpp"

namespace kova::family::csv {

// Each in the file of its name; species, breeds and the company in shop.cpp, hours and absences in work.cpp.

extern const Register AbsenceRegister;
extern const Register AnimalRegister;
extern const Register AppointmentRegister;
extern const Register BreedRegister;
extern const Register CompanyRegister;
extern const Register CustomerRegister;
extern const Register EmployeeHoursRegister;
extern const Register EmployeeRegister;
extern const Register HolidayRegister;
extern const Register OpeningHoursRegister;
extern const Register ServiceRegister;
extern const Register ServiceTypeRegister;
extern const Register SpeciesRegister;

/// All of them, those first that others refer to.
std::span<const Register* const> Registers();

/// The one of that name, case and accents aside; nothing where there is none.
const Register* RegisterNamed(std::string_view name);

} // namespace kova::family::csv
