#include "system/computer_name.hpp"

#include "system/windows/wide_text.hpp"

#include <windows.h>

namespace kova::system {

std::string ComputerName()
{
    DWORD size = 0;
    ::GetComputerNameExW(ComputerNameDnsHostname, nullptr, &size);
    std::wstring name(size, L'\0');
    if (!::GetComputerNameExW(ComputerNameDnsHostname, name.data(), &size))
        return {};
    name.resize(size);
    return Narrow(name);
}

} // namespace kova::system
