#include "tests/support/network_disk.hpp"

#include <sys/syscall.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace kova::test {

namespace {

std::string& Folder()
{
    static std::string folder;
    return folder;
}

long kindTold = 0;

} // namespace

NetworkDisk::NetworkDisk(const std::string& folder, long kind)
{
    Folder() = folder;
    kindTold = kind;
}

NetworkDisk::~NetworkDisk() { Folder().clear(); }

} // namespace kova::test

/// Stands in the place of the system's own. Weak, as it is no function of the house's: nobody below calls it
/// here.
extern "C" [[gnu::weak]] int statfs(const char* path, struct statfs* status) noexcept
{
    const auto answer = static_cast<int>(syscall(SYS_statfs, path, status));
    const std::string& folder = kova::test::Folder();
    if (answer == 0 && !folder.empty() && std::string(path).compare(0, folder.size(), folder) == 0)
        status->f_type = kova::test::kindTold;
    return answer;
}
