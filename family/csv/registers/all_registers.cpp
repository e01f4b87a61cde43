#include "family/csv/registers/all_registers.hpp"

#include "family/data/engine/fold_text.hpp"

#include <algorithm>

namespace kova::family::csv {

std::span<const Register* const> Registers()
{
    static const Register* const registers[] = {
        &CustomerRegister,    &SpeciesRegister,      &BreedRegister,         &AnimalRegister,
        &ServiceTypeRegister, &ServiceRegister,      &EmployeeRegister,      &HolidayRegister,
        &CompanyRegister,     &OpeningHoursRegister, &EmployeeHoursRegister, &AbsenceRegister,
        &AppointmentRegister,
    };
    return registers;
}

const Register* RegisterNamed(std::string_view name)
{
    const std::span<const Register* const> all = Registers();
    const auto found = std::ranges::find(all, std::string_view(FoldText(name)), &Register::name);
    return found == all.end() ? nullptr : *found;
}

} // namespace kova::family::csv
