#include "family/csv/prices.hpp"

#include "family/registers/registers.hpp"

#include <algorithm>

namespace kova::family::csv {

bool HasPrices(const Register& of)
{
    using registers::FieldInfo;
    const registers::Register* const described = registers::RegisterNamed(of.name);
    // Appointments come with the values of their pre-sales.
    return !described || std::ranges::any_of(described->Fields(), [](const FieldInfo& field) {
        return field.kind == registers::FieldKind::Money;
    });
}

} // namespace kova::family::csv
