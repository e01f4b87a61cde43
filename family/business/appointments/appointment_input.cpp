#include "family/business/appointments/appointment_input.hpp"

#include <cmath>

namespace kova::family {

Key KeyOf(Double number)
{
    constexpr Double largest = 9007199254740992.0;
    // Neither holds for what is no number, and no infinite one is that small.
    const bool whole = std::fabs(number) <= largest && std::trunc(number) == number;
    return whole ? static_cast<Key>(number) : 0;
}

} // namespace kova::family
