#include "host/folders.hpp"

#include <cstdlib>

namespace kova::host {

namespace fs = std::filesystem;

namespace {

fs::path AbsolutePathIn(const char* variable)
{
    const char* value = std::getenv(variable);
    const fs::path path = value == nullptr ? "" : value;
    return path.is_absolute() ? path : fs::path();
}

fs::path UserFolder(const char* variable, const char* belowHome)
{
    if (const fs::path folder = AbsolutePathIn(variable); !folder.empty())
        return folder / "kovaris";
    const fs::path home = AbsolutePathIn("HOME");
    return (home.empty() ? fs::temp_directory_path() : home / belowHome) / "kovaris";
}

} // namespace

fs::path DataFolder() { return UserFolder("XDG_DATA_HOME", ".local/share"); }

fs::path SettingsFolder() { return UserFolder("XDG_CONFIG_HOME", ".config"); }

fs::path DemonstrationDatabase() { return DataFolder() / "demonstracao.db"; }

fs::path RegistryFile() { return DataFolder() / "componentes.reg"; }

fs::path PictureWithoutDisplay() { return DataFolder() / "agenda.png"; }

fs::path ProgramFolder() { return fs::canonical("/proc/self/exe").parent_path(); }

} // namespace kova::host
