#pragma once

#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace kova::system {

/// An open file descriptor, closed at the end of its scope; what `errno` tells stays.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) { }
    ~Descriptor()
    {
        const int cause = errno;
        if (IsOpen())
            ::close(number_);
        errno = cause;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return number_ >= 0; }
    int Get() const { return number_; }
    int Release() { return std::exchange(number_, -1); }

private:
    int number_;
};

/// Why the call of the system failed that came last in this thread. To be asked right behind it.
inline std::error_code LastError() { return {errno, std::generic_category()}; }

} // namespace kova::system
