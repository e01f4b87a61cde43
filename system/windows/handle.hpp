#pragma once

#include <windows.h>

#include <utility>

namespace kova::system {

/// A handle of the system, closed at the end of its scope.
class Handle {
public:
    explicit Handle(HANDLE handle) : handle_(handle) { }
    ~Handle()
    {
        if (IsOpen())
            ::CloseHandle(handle_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }
    HANDLE Get() const { return handle_; }
    HANDLE Release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

private:
    HANDLE handle_;
};

/// An open file may be read, written, renamed and removed by others, as on other systems.
inline constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

} // namespace kova::system
