#include "system/want_of_room.hpp"

#include <windows.h>

namespace kova::system {

namespace {

/// The header of this compiler does not know it.
constexpr int ErrorDiskQuotaExceeded = 1295;

} // namespace

bool IsWantOfRoom(const std::error_code& error)
{
    if (error == std::errc::no_space_on_device || error == std::errc::file_too_large)
        return true;
    return error.category() == std::system_category()
        && (error.value() == ERROR_DISK_FULL || error.value() == ERROR_HANDLE_DISK_FULL
            || error.value() == ErrorDiskQuotaExceeded || error.value() == ERROR_FILE_TOO_LARGE);
}

} // namespace kova::system
