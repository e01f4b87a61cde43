#pragma once

#include <filesystem>

namespace kova::system {

/// The file of the program that runs, without links. Throws std::filesystem::filesystem_error.
std::filesystem::path ProgramPath();

/// The file that the caller is part of, without links: the program's, or that of a library which is loaded.
/// Throws std::filesystem::filesystem_error.
std::filesystem::path OwnPath();

/// Whether the file of the program that runs is gone from its place: an update has put another one there, or
/// it was removed. False on systems that let nobody do so.
bool ProgramWasReplaced();

} // namespace kova::system
