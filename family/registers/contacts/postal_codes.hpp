#pragma once

#include <string_view>

namespace kova::family::registers {

/// The state in which a postal code of eight digits lies; "" for those that begin with 00, which belong to no
/// place.
std::string_view StateOfPostalCode(std::string_view digits);

} // namespace kova::family::registers
