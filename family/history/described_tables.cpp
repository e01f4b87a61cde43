#include "family/history/described_tables.hpp"

#include "family/registers/access/access_registers.hpp"
#include "family/registers/registers.hpp"

namespace kova::family::history {

using registers::Register;

const Register* DescribedTable(std::string_view table)
{
    for (const Register* one : {&registers::UserRegister(), &registers::RoleRegister()}) {
        if (one->Table() == table)
            return one;
    }
    return registers::RegisterOfTable(table);
}

const Register* DescribedName(std::string_view name)
{
    for (const Register* one : {&registers::UserRegister(), &registers::RoleRegister()}) {
        if (one->Name().name == name)
            return one;
    }
    return registers::RegisterNamed(name);
}

} // namespace kova::family::history
