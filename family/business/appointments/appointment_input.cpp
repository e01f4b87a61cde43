#include "family/business/appointments/appointment_input.hpp"

#include <cmath>

namespace kova::family {

Key KeyOf(Double number)
{
    constexpr Double largest = 9007199254740992.0;
    const bool whole = std::isfinite(number) && std::fabs(number) <= largest && std::trunc(number) == number;
    return whole ? static_cast<Key>(number) : 0;
}

} // namespace kova::family
