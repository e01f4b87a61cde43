#pragma once

#include <filesystem>
#include <string_view>

namespace kova::system {

/// Where programs keep what belongs to the user, each in a folder of its own within. Not made where they are
/// missing. On systems of the desktop's conventions XDG_DATA_HOME and XDG_CONFIG_HOME name them, where a
/// relative path does not count. Empty where the user has no home: what lies where everybody may write is
/// nobody's own.
std::filesystem::path UserDataFolder();
std::filesystem::path UserSettingsFolder();

/// Where a program of others keeps its settings that has done so since before those conventions: "~/.NAME",
/// or NAME in the folder of settings.
std::filesystem::path UserFolderOf(std::string_view program);

/// Where the client of PostgreSQL servers looks for this user's passwords, as people are told of it and as
/// they would type it on this system: "~/.pgpass".
std::string_view ShownPasswordsFile();

} // namespace kova::system
