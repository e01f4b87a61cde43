#include "system/access.hpp"

#include <fcntl.h>
#include <sys/stat.h>
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

void KeepFromOthers(const std::string& path)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0)
        return;
    const bool shared = (status.st_mode & S_IWGRP) != 0;
    const mode_t kept = status.st_mode & 07777 & ~static_cast<mode_t>(shared ? S_IRWXO : S_IRWXO | S_IRWXG);
    if (kept != (status.st_mode & 07777))
        ::chmod(path.c_str(), kept);
}

} // namespace kova::system
