#include "system/user_account.hpp"

#include "system/windows/wide_text.hpp"

#include <windows.h>

#include <lm.h>

namespace kova::system {

namespace {

std::wstring LoginName()
{
    wchar_t name[UNLEN + 1] = {};
    DWORD size = UNLEN + 1;
    return ::GetUserNameW(name, &size) ? name : L"";
}

std::wstring FullNameOf(const std::wstring& login)
{
    LPBYTE answer = nullptr;
    if (login.empty() || ::NetUserGetInfo(nullptr, login.c_str(), 2, &answer) != NERR_Success)
        return {};
    const wchar_t* name = reinterpret_cast<const USER_INFO_2*>(answer)->usri2_full_name;
    std::wstring fullName = name == nullptr ? L"" : name;
    ::NetApiBufferFree(answer);
    return fullName;
}

} // namespace

UserAccount ThisUser()
{
    const std::wstring login = LoginName();
    return {Narrow(login), Narrow(FullNameOf(login))};
}

} // namespace kova::system
