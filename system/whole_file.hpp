#pragma once

#include <optional>
#include <string>
#include <system_error>

namespace kova::system {

/// The whole content of a file, byte by byte; nothing where it is not there, cannot be read or is no plain
/// file. Then `error` tells why.
std::optional<std::string> ReadWholeFile(const std::string& path, std::error_code& error);

/// Replaces a file's content in one step: whoever reads it, also after a crash, finds the old content or
/// the new one whole. A link stays and its target is replaced; the file keeps its permissions, and one that
/// is new is for this user alone, or gets its rights from its folder where files do so. False, with `error`,
/// where it cannot be written, and nothing has changed then.
bool ReplaceWholeFile(const std::string& path, const std::string& content, std::error_code& error);

/// Puts the content of one file into another, which is there already and keeps its rights. Throws
/// std::filesystem::filesystem_error; then the other holds a part.
void CopyWholeFile(const std::string& from, const std::string& to);

} // namespace kova::system
