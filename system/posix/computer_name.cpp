#include "system/computer_name.hpp"

#include <unistd.h>

#include <climits>

namespace kova::system {

std::string ComputerName()
{
    char name[HOST_NAME_MAX + 1] = {};
    // A name that was cut off has no end of its own; the last character stays zero.
    if (::gethostname(name, sizeof name - 1) != 0)
        return {};
    return name;
}

} // namespace kova::system
