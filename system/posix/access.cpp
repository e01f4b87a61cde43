#include "system/access.hpp"

#include <fcntl.h>
#include <unistd.h>

namespace kova::system {

namespace {

/// Not those of whoever started it.
bool May(const std::string& path, int right)
{
    return ::faccessat(AT_FDCWD, path.c_str(), right, AT_EACCESS) == 0;
}

} // namespace

bool MayRead(const std::string& path) { return May(path, R_OK); }
bool MayWrite(const std::string& path) { return May(path, W_OK); }

} // namespace kova::system
