#pragma once

#include <filesystem>

namespace kova::host {

/// Where the application keeps what belongs to the user: a folder "kovaris" in each of the folders that the
/// system has for it (system/user_folders.hpp). Throws std::runtime_error, in Portuguese, where the user has
/// none: in one that everybody may write to, anybody could name libraries to be loaded.
std::filesystem::path DataFolder();
std::filesystem::path SettingsFolder();
/// Throws where one of them would.
void RequireFolders();

/// The demonstration shop's database, the registry of components, the picture that a computer without
/// a display gets, and the settings of this user.
std::filesystem::path DemonstrationDatabase();
std::filesystem::path RegistryFile();
std::filesystem::path PictureWithoutDisplay();
std::filesystem::path SettingsFile();
/// What is typed and not saved, of all shops.
std::filesystem::path DraftsFolder();
/// What a failure that ends the program leaves.
std::filesystem::path FatalReportsFolder();

/// Folder of this executable, where the component libraries lie.
std::filesystem::path ProgramFolder();

} // namespace kova::host
