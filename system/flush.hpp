#pragma once

#include <string>

namespace kova::system {

/// Waits until the file's content is on the disk. Throws std::filesystem::filesystem_error.
void FlushFile(const std::string& path);

/// Waits until the names in a folder are on the disk; "" is the working folder. Nothing where a system puts
/// them there with each renaming. Throws std::filesystem::filesystem_error.
void FlushFolder(const std::string& path);

/// What the system remembers of a file's content is forgotten, so that the disk itself answers. Only a hint:
/// where the system does not take it, it answers from its memory.
void ForgetContent(const std::string& path);

} // namespace kova::system
