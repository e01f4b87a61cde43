#pragma once

#include <string>

namespace kova::system {

/// PRETTY_NAME of a file in the form of os-release; where it gives none, the system's own name from
/// uname, and "Linux" where that fails too.
std::string NameInReleaseFile(const std::string& path);

} // namespace kova::system
