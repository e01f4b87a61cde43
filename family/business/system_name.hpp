#pragma once

#include <string>

namespace kova::family {

/// PRETTY_NAME of a file in the form of os-release; where it gives none, the system's own name from
/// uname, and "Linux" where that fails too.
std::string SystemName(const std::string& releaseFile);

} // namespace kova::family
