#pragma once

#include <string>

namespace kova::system {

/// Gives a file another name on the same disk, and never replaces what bears it: that fails with
/// std::errc::file_exists. Throws std::filesystem::filesystem_error.
void RenameWithoutReplacing(const std::string& from, const std::string& to);

} // namespace kova::system
