#pragma once

#include <string>

namespace kova::family {

/// What this computer is called in its network; empty where it has no name.
std::string DeskName();

} // namespace kova::family
