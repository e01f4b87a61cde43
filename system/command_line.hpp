#pragma once

#include <string>
#include <vector>

namespace kova::system {

/// What stands behind the program's name on its command line, whatever code the system hands to main().
std::vector<std::string> Arguments(int count, const char* const* words);

/// From now on the standard streams carry UTF-8 to and from a console, whatever code it has, and elsewhere
/// every byte as it is: no line end changes. A program with a window of its own writes to the console that it
/// was called from.
void UseUtf8Streams();

} // namespace kova::system
