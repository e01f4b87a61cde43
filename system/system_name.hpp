#pragma once

#include <string>

namespace kova::system {

/// What the operating system calls itself to people, with its version where it says so. Never "".
std::string SystemName();

} // namespace kova::system
