#include "system/file_lock.hpp"

#include "system/path_text.hpp"
#include "system/windows/handle.hpp"
#include "system/windows/last_error.hpp"

namespace kova::system {

namespace {

HANDLE HandleOf(std::intptr_t number) { return reinterpret_cast<HANDLE>(number); }

HANDLE Open(const std::filesystem::path& path, DWORD disposition)
{
    return ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, ShareAll, nullptr, disposition,
                         FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// A locked part of a file is closed to those who read and write it, so one byte is locked where no file
/// reaches.
bool Lock(HANDLE file, DWORD flags)
{
    OVERLAPPED place{};
    place.Offset = 0xFFFFFFFE;
    place.OffsetHigh = 0x7FFFFFFF;
    return ::LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | flags, 0, 1, 0, &place) != 0;
}

/// Whether the opened file still is the one that bears the name: whoever had it may have renamed it
/// meanwhile.
bool Bears(HANDLE file, const std::filesystem::path& name)
{
    const Handle other(::CreateFileW(name.c_str(), 0, ShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    BY_HANDLE_FILE_INFORMATION opened{}, named{};
    return other.IsOpen() && ::GetFileInformationByHandle(file, &opened)
        && ::GetFileInformationByHandle(other.Get(), &named)
        && opened.dwVolumeSerialNumber == named.dwVolumeSerialNumber
        && opened.nFileIndexHigh == named.nFileIndexHigh && opened.nFileIndexLow == named.nFileIndexLow;
}

std::error_code Busy() { return std::make_error_code(std::errc::resource_unavailable_try_again); }

} // namespace

FileLock FileLock::Await(const std::string& path, std::error_code& error)
{
    Handle file(Open(PathOf(path), OPEN_ALWAYS));
    if (file.IsOpen() && Lock(file.Get(), 0))
        return FileLock(reinterpret_cast<Number>(file.Release()));
    error = LastError();
    return {};
}

FileLock FileLock::Try(const std::string& path, Missing missing, std::error_code& error)
{
    const std::filesystem::path name = PathOf(path);
    Handle file(Open(name, missing == Missing::Make ? OPEN_ALWAYS : OPEN_EXISTING));
    if (!file.IsOpen()) {
        error = LastError();
        return {};
    }
    if (!Lock(file.Get(), LOCKFILE_FAIL_IMMEDIATELY)) {
        error = ::GetLastError() == ERROR_LOCK_VIOLATION ? Busy() : LastError();
        return {};
    }
    if (!Bears(file.Get(), name)) {
        error = Busy();
        return {};
    }
    return FileLock(reinterpret_cast<Number>(file.Release()));
}

FileLock::~FileLock() { const Handle closed(HandleOf(file_)); }

} // namespace kova::system
