#include "tests/support/own_file.hpp"

#include "system/windows/wide_text.hpp"

#include <windows.h>

#include <aclapi.h>

namespace kova::test {

bool IsForItsOwnerAlone(const std::string& path)
{
    PSECURITY_DESCRIPTOR told = nullptr;
    PACL rights = nullptr;
    const DWORD result =
        ::GetNamedSecurityInfoW(system::Wide(path).data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                                nullptr, &rights, nullptr, &told);
    SECURITY_DESCRIPTOR_CONTROL marks = 0;
    DWORD revision = 0;
    const bool known = result == ERROR_SUCCESS && ::GetSecurityDescriptorControl(told, &marks, &revision);
    ::LocalFree(told);
    return known && rights != nullptr && (marks & SE_DACL_PROTECTED) == 0;
}

} // namespace kova::test
