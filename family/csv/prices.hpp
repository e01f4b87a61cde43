#pragma once

#include "family/csv/register.hpp"

namespace kova::family::csv {

/// Whether the files of the register tell prices and costs, which not everybody may see.
bool HasPrices(const Register& of);

} // namespace kova::family::csv
