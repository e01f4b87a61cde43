#include "host/components/file_replacement.hpp"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace kova::host {

FileHandle::~FileHandle()
{
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

std::optional<std::string> ReadWholeFile(const std::string& path)
{
    const FileHandle file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.IsOpen())
        return std::nullopt;
    std::string content;
    std::array<char, 16384> block;
    for (;;) {
        const ssize_t count = ::read(file.Get(), block.data(), block.size());
        if (count == 0)
            return content;
        if (count > 0)
            content.append(block.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return std::nullopt;
    }
}

namespace {

bool WriteAll(int descriptor, const std::string& content)
{
    std::size_t written = 0;
    while (written < content.size()) {
        const ssize_t count = ::write(descriptor, content.data() + written, content.size() - written);
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            written += static_cast<std::size_t>(count);
    }
    return true;
}

/// The permissions of the file that is replaced, or those that a new file gets.
mode_t ModeFor(const std::string& path)
{
    struct stat status;
    if (::stat(path.c_str(), &status) == 0)
        return status.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

/// The file behind a chain of links, so that a rename does not put a plain file in a link's place.
std::string WithoutLinks(const std::string& path)
{
    std::error_code error;
    const auto target = std::filesystem::canonical(path, error);
    return error ? path : target.string();
}

/// A rename lasts through a crash once its folder is on disk.
void SyncFolderOf(const std::string& path)
{
    const auto folder = std::filesystem::path(path).parent_path();
    const FileHandle handle(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.IsOpen())
        ::fsync(handle.Get());
}

bool WriteTemporary(int descriptor, const std::string& content, mode_t mode)
{
    return WriteAll(descriptor, content) && ::fchmod(descriptor, mode) == 0 && ::fsync(descriptor) == 0;
}

} // namespace

bool ReplaceWholeFile(const std::string& path, const std::string& content)
{
    const std::string target = WithoutLinks(path);
    // A rename needs no right to the file itself, so a read-only one has to be asked about.
    if (::access(target.c_str(), F_OK) == 0 && ::access(target.c_str(), W_OK) != 0)
        return false;
    std::string temporary = target + ".XXXXXX";
    const FileHandle file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.IsOpen())
        return false;
    if (WriteTemporary(file.Get(), content, ModeFor(target))
        && ::rename(temporary.c_str(), target.c_str()) == 0) {
        SyncFolderOf(target);
        return true;
    }
    ::unlink(temporary.c_str());
    return false;
}

} // namespace kova::host
