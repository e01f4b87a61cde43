#include "system/file_lock.hpp"

#include <utility>

namespace kova::system {

FileLock::FileLock(FileLock&& other) noexcept : file_(std::exchange(other.file_, Nothing)) { }

FileLock& FileLock::operator=(FileLock&& other) noexcept
{
    std::swap(file_, other.file_);
    return *this;
}

} // namespace kova::system
