#include "tools/agenda-data/csv/register.hpp"

#include "family/data/engine/fold_text.hpp"
#include "tools/agenda-data/command.hpp"

namespace kova::data {

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

const Register& FindRegister(const arguments::Call& call, std::size_t operand)
{
    const std::string& name = call.Operand(operand);
    const std::string folded = family::FoldText(name);
    std::string names;
    for (const Register* one : Registers()) {
        if (one->name == folded)
            return *one;
        names.append(names.empty() ? "" : ", ").append(one->name);
    }
    call.Refuse("O cadastro \"" + name + "\" não existe. Cadastros: " + names + ".");
}

} // namespace kova::data
