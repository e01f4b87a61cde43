#pragma once

#include <cstdint>
#include <string>
#include <system_error>

namespace kova::system {

/// A file that this object has for itself among all that ask for it in this way, in this program or another.
/// Whoever does not ask may read, write, rename and remove it. The lock goes with the process, however that
/// ends; the file stays.
class FileLock {
public:
    /// What to do where there is no such file. One that is made is for this user alone.
    enum class Missing { Make, Fail };

    /// Waits until the file is free, and makes it where it is missing. Holds nothing, with `error`, where it
    /// cannot be opened.
    static FileLock Await(const std::string& path, std::error_code& error);

    /// Does not wait. `error` is std::errc::resource_unavailable_try_again where somebody has the file, or
    /// has just given it another name.
    static FileLock Try(const std::string& path, Missing missing, std::error_code& error);

    /// Holds nothing.
    FileLock() = default;
    ~FileLock();
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;

    bool IsHeld() const { return file_ != Nothing; }

private:
    /// The system's number of an open file.
    using Number = std::intptr_t;
    static constexpr Number Nothing = -1;

    explicit FileLock(Number file) : file_(file) { }

    Number file_ = Nothing;
};

} // namespace kova::system
