#include "family/csv/prices.hpp"

#include "family/registers/registers.hpp"

namespace kova::family::csv {

bool HasPrices(const Register& of)
{
    const registers::Register* const described = registers::RegisterNamed(of.name);
    // Appointments come with the values of their pre-sales.
    return !described || registers::HasPrices(*described);
}

} // namespace kova::family::csv
