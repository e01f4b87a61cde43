#include "system/user_folders.hpp"

#include "system/path_text.hpp"

#include <cstdlib>

namespace kova::system {

namespace fs = std::filesystem;

namespace {

fs::path AbsolutePathIn(const char* variable)
{
    const char* value = std::getenv(variable);
    const fs::path path = PathOf(value == nullptr ? "" : value);
    return path.is_absolute() ? path : fs::path();
}

fs::path UserFolder(const char* variable, const char* belowHome)
{
    if (const fs::path folder = AbsolutePathIn(variable); !folder.empty())
        return folder;
    const fs::path home = AbsolutePathIn("HOME");
    return home.empty() ? fs::path() : home / PathOf(belowHome);
}

} // namespace

fs::path UserDataFolder() { return UserFolder("XDG_DATA_HOME", ".local/share"); }

fs::path UserSettingsFolder() { return UserFolder("XDG_CONFIG_HOME", ".config"); }

fs::path UserFolderOf(std::string_view program)
{
    const fs::path home = AbsolutePathIn("HOME");
    return home.empty() ? fs::path() : home / PathOf("." + std::string(program));
}

std::string_view ShownPasswordsFile() { return "~/.pgpass"; }

} // namespace kova::system
