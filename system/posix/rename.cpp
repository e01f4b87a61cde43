#include "system/rename.hpp"

#include "system/path_text.hpp"
#include "system/posix/descriptor.hpp"

#include <fcntl.h>

#include <cstdio>

namespace kova::system {

namespace fs = std::filesystem;

/// File systems of other computers' disks and sticks may not know the renaming that never replaces.
void RenameWithoutReplacing(const std::string& from, const std::string& to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return;
    const std::error_code error = LastError();
    if (error != std::errc::invalid_argument && error != std::errc::function_not_supported)
        throw fs::filesystem_error("rename", PathOf(to), error);
    if (fs::exists(fs::symlink_status(PathOf(to))))
        throw fs::filesystem_error("rename", PathOf(to), std::make_error_code(std::errc::file_exists));
    fs::rename(PathOf(from), PathOf(to));
}

} // namespace kova::system
