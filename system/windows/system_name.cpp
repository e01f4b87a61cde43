#include "system/system_name.hpp"

#include "system/windows/wide_text.hpp"

#include <windows.h>

namespace kova::system {

namespace {

std::string CurrentVersion(const wchar_t* value)
{
    constexpr const wchar_t* Key = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
    wchar_t text[256] = {};
    DWORD size = sizeof text;
    const LSTATUS status =
        ::RegGetValueW(HKEY_LOCAL_MACHINE, Key, value, RRF_RT_REG_SZ, nullptr, text, &size);
    return status == ERROR_SUCCESS ? Narrow(text) : "";
}

} // namespace

std::string SystemName()
{
    constexpr std::string_view Tenth = "Windows 10";
    constexpr int FirstBuildOfEleventh = 22000;
    std::string name = CurrentVersion(L"ProductName");
    const std::string build = CurrentVersion(L"CurrentBuildNumber");
    // The eleventh goes on calling itself the tenth there; its builds tell them apart.
    if (name.starts_with(Tenth) && std::atoi(build.c_str()) >= FirstBuildOfEleventh)
        name.replace(0, Tenth.size(), "Windows 11");
    return name.empty() ? "Windows" : name;
}

} // namespace kova::system
