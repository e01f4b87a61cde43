#pragma once

#include <filesystem>

namespace kova::system {

/// The file of the program that runs, without links. Throws std::filesystem::filesystem_error.
std::filesystem::path ProgramPath();

} // namespace kova::system
