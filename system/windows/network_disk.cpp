#include "system/network_disk.hpp"

#include "system/path_text.hpp"

#include <windows.h>

namespace kova::system {

/// A share has no letter, unless it was given one.
bool IsOnNetworkDisk(const std::string& path)
{
    constexpr std::wstring_view OfShares = L"\\\\", OfDevices[] = {L"\\\\?\\", L"\\\\.\\"};
    // Asked before the name is completed: the library takes a share's two strokes for one there.
    const std::wstring given = PathOf(path).make_preferred().native();
    if (given.starts_with(OfShares))
        return !given.starts_with(OfDevices[0]) && !given.starts_with(OfDevices[1]);
    std::error_code unreadable;
    const std::wstring name = std::filesystem::absolute(given, unreadable).native();
    constexpr std::size_t LengthOfDrive = 3;
    return ::GetDriveTypeW(name.substr(0, LengthOfDrive).c_str()) == DRIVE_REMOTE;
}

} // namespace kova::system
