#pragma once

#include "family/data/engine/key.hpp"
#include "tools/agenda-data/command.hpp"

#include <cstdint>
#include <limits>

namespace kova::data {

inline constexpr arguments::Option CustomerOption{"--customer", "CÓDIGO", "O código do cliente."};

/// The code in that option. Throws BadArguments where it was not given or is none.
inline family::Key CustomerOf(const Call& call)
{
    if (!call.Has(CustomerOption.name))
        call.Refuse("Informe com --customer o código do cliente.");
    return call.Count(CustomerOption.name, 0, std::numeric_limits<std::int32_t>::max());
}

} // namespace kova::data
