#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// What the operating system does for the house, with one header for each thing and two sources where the
/// systems differ (`posix/`, `windows/`). Texts are UTF-8 on every system, those that name a path as well:
/// what takes a path takes its text, and what a caller goes on from is given as a path.
namespace kova::system {

/// The path that a text names. Made from the narrow text directly, a name with accents would be another one
/// where the system's own code is not UTF-8. Bytes that are no UTF-8 stay as they are where file names are
/// bytes, and are refused with std::filesystem::filesystem_error where they are characters.
std::filesystem::path PathOf(std::string_view text);

/// The text of a path, as the system writes it.
std::string TextOf(const std::filesystem::path& path);

} // namespace kova::system
