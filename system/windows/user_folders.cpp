#include "system/user_folders.hpp"

#include "system/path_text.hpp"

#include <windows.h>

#include <initguid.h>
#include <knownfolders.h>
#include <shlobj.h>

namespace kova::system {

namespace fs = std::filesystem;

namespace {

fs::path KnownFolder(const KNOWNFOLDERID& id)
{
    PWSTR answer = nullptr;
    const HRESULT result = ::SHGetKnownFolderPath(id, KF_FLAG_DONT_VERIFY, nullptr, &answer);
    const fs::path folder = SUCCEEDED(result) ? fs::path(answer) : fs::path();
    ::CoTaskMemFree(answer);
    return folder;
}

} // namespace

fs::path UserDataFolder() { return KnownFolder(FOLDERID_LocalAppData); }

fs::path UserSettingsFolder() { return KnownFolder(FOLDERID_RoamingAppData); }

fs::path UserFolderOf(std::string_view program) { return UserSettingsFolder() / PathOf(program); }

std::string_view ShownPasswordsFile() { return R"(%APPDATA%\postgresql\pgpass.conf)"; }

} // namespace kova::system
