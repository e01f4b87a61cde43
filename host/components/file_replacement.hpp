#pragma once

#include <optional>
#include <string>

namespace kova::host {

/// The whole content of a file; nothing where it is not there, cannot be read or is no plain file. Then
/// `errno` tells why.
std::optional<std::string> ReadWholeFile(const std::string& path);

/// Replaces a file's content in one step: whoever reads it, also after a crash, finds the old content or
/// the new one whole. A link stays and its target is replaced; the file keeps its permissions. False, and
/// nothing has changed, where it cannot be written.
bool ReplaceWholeFile(const std::string& path, const std::string& content);

/// An open file descriptor, closed at the end of its scope.
class FileHandle {
public:
    explicit FileHandle(int descriptor) : descriptor_(descriptor) { }
    ~FileHandle();
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool IsOpen() const { return descriptor_ >= 0; }
    int Get() const { return descriptor_; }

private:
    int descriptor_;
};

} // namespace kova::host
