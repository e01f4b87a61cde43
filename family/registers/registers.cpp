#include "family/registers/registers.hpp"

namespace kova::family::registers {

std::span<const Register* const> Registers()
{
    static const Register* const all[] = {
        &CustomerRegister(), &AnimalRegister(),        &ServiceRegister(),      &ServiceTypeRegister(),
        &EmployeeRegister(), &EmployeeHoursRegister(), &AbsenceRegister(),      &SpeciesRegister(),
        &BreedRegister(),    &HolidayRegister(),       &OpeningHoursRegister(), &CompanyRegister(),
    };
    return all;
}

const Register* RegisterNamed(std::string_view name)
{
    for (const Register* one : Registers()) {
        if (one->Name().name == name)
            return one;
    }
    return nullptr;
}

const Register* RegisterOfTable(std::string_view table)
{
    for (const Register* one : Registers()) {
        if (one->Table() == table)
            return one;
    }
    return nullptr;
}

} // namespace kova::family::registers
