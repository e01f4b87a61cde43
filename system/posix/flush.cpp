#include "system/flush.hpp"

#include "system/path_text.hpp"
#include "system/posix/descriptor.hpp"

#include <fcntl.h>

namespace kova::system {

void FlushFile(const std::string& path)
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.IsOpen() || ::fsync(file.Get()) != 0)
        throw std::filesystem::filesystem_error("fsync", PathOf(path), LastError());
}

void FlushFolder(const std::string& path) { FlushFile(path.empty() ? "." : path); }

void ForgetContent(const std::string& path)
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.IsOpen())
        ::posix_fadvise(file.Get(), 0, 0, POSIX_FADV_DONTNEED);
}

} // namespace kova::system
