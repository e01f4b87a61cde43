#pragma once

#include <filesystem>

namespace kova::host {

/// Where the application keeps what belongs to the user: the folders that the desktop's conventions name
/// (XDG_DATA_HOME, XDG_CONFIG_HOME), each with a folder "kovaris" below it. A relative path there does
/// not count, and without a home folder they lie in the folder for temporary files.
std::filesystem::path DataFolder();
std::filesystem::path SettingsFolder();

/// The demonstration shop's database, the registry of components and the picture that a computer without
/// a display gets.
std::filesystem::path DemonstrationDatabase();
std::filesystem::path RegistryFile();
std::filesystem::path PictureWithoutDisplay();

/// Folder of this executable, where the component libraries lie.
std::filesystem::path ProgramFolder();

} // namespace kova::host
