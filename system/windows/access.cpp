#include "system/access.hpp"

#include "system/path_text.hpp"
#include "system/windows/handle.hpp"

namespace kova::system {

namespace {

/// Rights are told by no call of the system's, so that the file is opened for it. One that somebody else
/// keeps to himself for now is none without the right.
bool May(const std::string& path, DWORD ofFile, DWORD ofFolder)
{
    const std::filesystem::path name = PathOf(path);
    std::error_code unreadable;
    const bool isFolder = std::filesystem::is_directory(name, unreadable);
    // Without this flag no folder is opened.
    const Handle opened(::CreateFileW(name.c_str(), isFolder ? ofFolder : ofFile, ShareAll, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return opened.IsOpen() || ::GetLastError() == ERROR_SHARING_VIOLATION;
}

/// The mark of a file counts for everybody, also for those who may open it all the same. On a folder it means
/// something else.
bool IsMarkedReadOnly(const std::filesystem::path& name)
{
    const DWORD marks = ::GetFileAttributesW(name.c_str());
    return marks != INVALID_FILE_ATTRIBUTES && (marks & FILE_ATTRIBUTE_READONLY) != 0
        && (marks & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

} // namespace

bool MayRead(const std::string& path) { return May(path, GENERIC_READ, FILE_LIST_DIRECTORY); }

bool MayWrite(const std::string& path)
{
    return !IsMarkedReadOnly(PathOf(path)) && May(path, GENERIC_WRITE, FILE_ADD_FILE);
}

void KeepFromOthers(const std::string&) { }

} // namespace kova::system
