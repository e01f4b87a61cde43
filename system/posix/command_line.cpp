#include "system/command_line.hpp"

namespace kova::system {

std::vector<std::string> Arguments(int count, const char* const* words)
{
    // A program may be called without even its name.
    return count > 0 ? std::vector<std::string>(words + 1, words + count) : std::vector<std::string>();
}

void UseUtf8Streams() { }

} // namespace kova::system
