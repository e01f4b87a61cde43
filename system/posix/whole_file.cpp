#include "system/whole_file.hpp"

#include "system/flush.hpp"
#include "system/path_text.hpp"
#include "system/posix/descriptor.hpp"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cstdlib>

namespace kova::system {

namespace {

bool WriteAll(int descriptor, std::string_view content)
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

/// The permissions of the file that is replaced. A new file is for its owner alone.
mode_t ModeFor(const std::string& path)
{
    struct stat status;
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : S_IRUSR | S_IWUSR;
}

/// The file behind a chain of links, so that a rename does not put a plain file in a link's place.
std::string WithoutLinks(const std::string& path)
{
    std::error_code error;
    const std::filesystem::path target = std::filesystem::canonical(PathOf(path), error);
    return error ? path : TextOf(target);
}

/// A rename needs no right to the file itself, so a read-only one has to be asked about.
bool MayBeReplaced(const std::string& path)
{
    return ::access(path.c_str(), F_OK) != 0 || ::access(path.c_str(), W_OK) == 0;
}

bool WriteTemporary(int descriptor, const std::string& content, mode_t mode)
{
    return WriteAll(descriptor, content) && ::fchmod(descriptor, mode) == 0 && ::fsync(descriptor) == 0;
}

bool Replace(const std::string& target, const std::string& content)
{
    std::string temporary = target + ".XXXXXX";
    const Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.IsOpen())
        return false;
    if (WriteTemporary(file.Get(), content, ModeFor(target))
        && ::rename(temporary.c_str(), target.c_str()) == 0)
        return true;
    const int cause = errno;
    ::unlink(temporary.c_str());
    errno = cause;
    return false;
}

enum class Ended { AtTheEnd, ByReading, ByTaking };

/// Hands each block of the file to `take`, which answers whether it goes on. The last error tells why it did
/// not come to the end.
template <class Take> Ended ReadBlocks(const Descriptor& file, Take take)
{
    std::array<char, 16384> block;
    while (file.IsOpen()) {
        const ssize_t count = ::read(file.Get(), block.data(), block.size());
        if (count == 0)
            return Ended::AtTheEnd;
        if (count < 0 && errno != EINTR)
            break;
        if (count > 0 && !take(std::string_view(block.data(), static_cast<std::size_t>(count))))
            return Ended::ByTaking;
    }
    return Ended::ByReading;
}

[[noreturn]] void Fail(const std::string& path)
{
    const std::error_code error = LastError();
    throw std::filesystem::filesystem_error("copy", PathOf(path), error);
}

/// A rename lasts through a crash once its folder is on disk. Where that cannot be had, it is done all the
/// same.
void FlushFolderOf(const std::string& path)
{
    try {
        FlushFolder(TextOf(PathOf(path).parent_path()));
    } catch (const std::filesystem::filesystem_error&) {
        return;
    }
}

} // namespace

std::optional<std::string> ReadWholeFile(const std::string& path, std::error_code& error)
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::string content;
    const auto add = [&](std::string_view block) {
        content += block;
        return true;
    };
    if (ReadBlocks(file, add) == Ended::AtTheEnd)
        return content;
    error = LastError();
    return std::nullopt;
}

bool ReplaceWholeFile(const std::string& path, const std::string& content, std::error_code& error)
{
    const std::string target = WithoutLinks(path);
    if (!MayBeReplaced(target) || !Replace(target, content)) {
        error = LastError();
        return false;
    }
    FlushFolderOf(target);
    return true;
}

void CopyWholeFile(const std::string& from, const std::string& to)
{
    const Descriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    if (!source.IsOpen())
        Fail(from);
    const Descriptor target(::open(to.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC));
    if (!target.IsOpen())
        Fail(to);
    const Ended ended =
        ReadBlocks(source, [&](std::string_view block) { return WriteAll(target.Get(), block); });
    if (ended != Ended::AtTheEnd)
        Fail(ended == Ended::ByReading ? from : to);
}

} // namespace kova::system
