#pragma once

#include <string>
#include <vector>

namespace kova::system {

/// What stands behind the program's name on its command line, whatever code the system hands to main().
std::vector<std::string> Arguments(int count, const char* const* words);

/// What the program writes to its standard output and error leaves it byte by byte: no line end changes.
void WriteBytesUnchanged();

} // namespace kova::system
