#include "system/flush.hpp"

#include "system/path_text.hpp"
#include "system/windows/handle.hpp"
#include "system/windows/last_error.hpp"

namespace kova::system {

namespace {

HANDLE Open(const std::filesystem::path& path, DWORD access, DWORD flags)
{
    return ::CreateFileW(path.c_str(), access, ShareAll, nullptr, OPEN_EXISTING, flags, nullptr);
}

} // namespace

/// Of a file that is opened for reading nothing is written.
void FlushFile(const std::string& path)
{
    const std::filesystem::path name = PathOf(path);
    const Handle file(Open(name, GENERIC_WRITE, FILE_ATTRIBUTE_NORMAL));
    if (file.IsOpen() && ::FlushFileBuffers(file.Get()))
        return;
    const std::error_code error = LastError();
    throw std::filesystem::filesystem_error("flush", name, error);
}

/// Names are written through with each renaming.
void FlushFolder(const std::string&) { }

/// Whoever opens a file past the system's memory has it emptied first.
void ForgetContent(const std::string& path)
{
    const Handle file(Open(PathOf(path), GENERIC_READ, FILE_FLAG_NO_BUFFERING));
}

} // namespace kova::system
