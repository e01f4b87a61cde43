#pragma once

#include <string>

namespace kova::system {

/// What this computer is called in its network; "" where it has no name.
std::string ComputerName();

} // namespace kova::system
