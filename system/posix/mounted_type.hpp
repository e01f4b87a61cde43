#pragma once

#include <string>
#include <string_view>

namespace kova::system {

/// The kind of the file system with that device number ("0:52"), as a file in the form of
/// /proc/self/mountinfo tells it, like "fuse.sshfs"; "" where it tells of none.
std::string MountedType(const std::string& mounts, std::string_view device);

/// Whether a program that serves a file system of that kind brings it from another computer. Others show what
/// this computer has: a foreign disk, an encrypted folder.
bool ServesNetwork(std::string_view type);

} // namespace kova::system
