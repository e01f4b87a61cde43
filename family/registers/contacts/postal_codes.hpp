#pragma once

#include <string_view>

namespace kova::family::registers {

/// The state in which a postal code of eight digits lies; "" for one that belongs to no place, as those that
/// begin with 00.
std::string_view StateOfPostalCode(std::string_view digits);

} // namespace kova::family::registers
