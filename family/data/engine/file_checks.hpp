#pragma once

#include <optional>
#include <string>

namespace kova::family {

/// Why a file cannot be an SQLite database that this program may write; nothing where it can. The texts
/// are Portuguese, name the path and say what to do.
std::optional<std::string> CheckExistingFile(const std::string& path);

/// The same for one that is only read: neither it nor its folder has to be writable, and it may lie anywhere.
std::optional<std::string> CheckReadableFile(const std::string& path);

/// Whether an SQLite database and its folder let this program write.
bool MayWriteDatabase(const std::string& path);

/// Why no database can be kept at that path, where a file may be or not: several programs cannot share one on
/// a network's disk.
std::optional<std::string> CheckLocalDisk(const std::string& path);

/// Why no new file can be made at that path.
std::optional<std::string> CheckNewFile(const std::string& path);

} // namespace kova::family
