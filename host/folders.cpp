#include "host/folders.hpp"

#include "system/program_path.hpp"
#include "system/user_folders.hpp"

#include <stdexcept>

namespace kova::host {

namespace fs = std::filesystem;

namespace {

fs::path OwnFolderIn(const fs::path& folder)
{
    if (folder.empty())
        throw std::runtime_error(
            "O programa não sabe onde guardar o que é deste usuário: a variável HOME não indica a pasta "
            "pessoal dele. Defina HOME e abra o programa novamente.");
    return folder / "kovaris";
}

} // namespace

fs::path DataFolder() { return OwnFolderIn(system::UserDataFolder()); }

fs::path SettingsFolder() { return OwnFolderIn(system::UserSettingsFolder()); }

void RequireFolders()
{
    DataFolder();
    SettingsFolder();
}

fs::path DemonstrationDatabase() { return DataFolder() / "demonstracao.db"; }

fs::path RegistryFile() { return DataFolder() / "componentes.reg"; }

fs::path PictureWithoutDisplay() { return DataFolder() / "agenda.png"; }

fs::path DraftsFolder() { return SettingsFolder() / "rascunhos"; }

fs::path FatalReportsFolder() { return SettingsFolder() / "falhas"; }

fs::path SettingsFile() { return SettingsFolder() / "kovaris.ini"; }

fs::path ProgramFolder()
{
    // Once the program's file is replaced by an update, nobody can ask where it was.
    static const fs::path folder = system::ProgramPath().parent_path();
    return folder;
}

} // namespace kova::host
