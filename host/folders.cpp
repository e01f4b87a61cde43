#include "host/folders.hpp"

#include "system/program_path.hpp"
#include "system/user_folders.hpp"

namespace kova::host {

namespace fs = std::filesystem;

fs::path DataFolder() { return system::UserDataFolder() / "kovaris"; }

fs::path SettingsFolder() { return system::UserSettingsFolder() / "kovaris"; }

fs::path DemonstrationDatabase() { return DataFolder() / "demonstracao.db"; }

fs::path RegistryFile() { return DataFolder() / "componentes.reg"; }

fs::path PictureWithoutDisplay() { return DataFolder() / "agenda.png"; }

fs::path ProgramFolder() { return system::ProgramPath().parent_path(); }

} // namespace kova::host
