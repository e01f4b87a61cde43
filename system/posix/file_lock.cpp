#include "system/file_lock.hpp"

#include "system/posix/descriptor.hpp"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace kova::system {

namespace {

int Open(const std::string& path, int flags)
{
    return ::open(path.c_str(), flags | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

bool Lock(int file, int how)
{
    int answer = ::flock(file, how);
    while (answer != 0 && errno == EINTR)
        answer = ::flock(file, how);
    return answer == 0;
}

/// Whether the opened file still is the one that bears the name: whoever had it may have renamed it
/// meanwhile.
bool Bears(int file, const std::string& name)
{
    struct stat opened {
    }, named{};
    return ::fstat(file, &opened) == 0 && ::stat(name.c_str(), &named) == 0 && opened.st_ino == named.st_ino
        && opened.st_dev == named.st_dev;
}

} // namespace

FileLock FileLock::Await(const std::string& path, std::error_code& error)
{
    Descriptor file(Open(path, O_CREAT));
    if (file.IsOpen() && Lock(file.Get(), LOCK_EX))
        return FileLock(file.Release());
    error = LastError();
    return {};
}

FileLock FileLock::Try(const std::string& path, Missing missing, std::error_code& error)
{
    Descriptor file(Open(path, missing == Missing::Make ? O_CREAT : 0));
    if (!file.IsOpen() || !Lock(file.Get(), LOCK_EX | LOCK_NB)) {
        error = LastError();
        return {};
    }
    if (!Bears(file.Get(), path)) {
        error = std::make_error_code(std::errc::resource_unavailable_try_again);
        return {};
    }
    return FileLock(file.Release());
}

FileLock::~FileLock() { const Descriptor closed(static_cast<int>(file_)); }

} // namespace kova::system
