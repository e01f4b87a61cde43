#pragma once

#include <filesystem>

namespace kova::host {

/// Where the application keeps what belongs to the user: a folder "kovaris" in each of the folders that the
/// system has for it (system/user_folders.hpp).
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
