#pragma once

#include <optional>
#include <string>

namespace kova::family {

/// Why a file cannot be an SQLite database that this program may write; nothing where it can. The texts
/// are Portuguese, name the path and say what to do.
std::optional<std::string> CheckExistingFile(const std::string& path);

/// Why no new file can be made at that path.
std::optional<std::string> CheckNewFile(const std::string& path);

} // namespace kova::family
