#include "system/network_disk.hpp"

#include "system/path_text.hpp"

#include <windows.h>

namespace kova::system {

/// A share has no letter, unless it was given one.
bool IsOnNetworkDisk(const std::string& path)
{
    constexpr std::wstring_view OfShares = L"\\\\", OfDevices[] = {L"\\\\?\\", L"\\\\.\\"};
    std::error_code unreadable;
    const std::wstring name = std::filesystem::absolute(PathOf(path), unreadable).native();
    if (name.starts_with(OfShares))
        return !name.starts_with(OfDevices[0]) && !name.starts_with(OfDevices[1]);
    constexpr std::size_t LengthOfDrive = 3;
    return ::GetDriveTypeW(name.substr(0, LengthOfDrive).c_str()) == DRIVE_REMOTE;
}

} // namespace kova::system
