#include "tests/support/small_files.hpp"

#include "tests/support/windows/replaced_call.hpp"

namespace kova::test {

namespace {

std::uint64_t limit = 0;

/// Where the write begins: at the place that comes with it, or where the last one has ended.
std::uint64_t BeginOf(HANDLE file, const OVERLAPPED* place)
{
    if (place != nullptr)
        return (static_cast<std::uint64_t>(place->OffsetHigh) << 32) | place->Offset;
    LARGE_INTEGER at{};
    return ::SetFilePointerEx(file, {}, &at, FILE_CURRENT) ? static_cast<std::uint64_t>(at.QuadPart) : 0;
}

/// The original is found anew: the program's own way to it leads here.
BOOL WriteWithinLimit(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED place)
{
    if (::GetFileType(file) == FILE_TYPE_DISK && BeginOf(file, place) + count > limit) {
        ::SetLastError(ERROR_DISK_FULL);
        return FALSE;
    }
    static const auto write = reinterpret_cast<decltype(&::WriteFile)>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "WriteFile")));
    return write(file, bytes, count, written, place);
}

} // namespace

struct SmallFiles::Former {
    ReplacedCall write{"WriteFile", reinterpret_cast<void*>(&WriteWithinLimit)};
};

SmallFiles::SmallFiles(std::uint64_t bytes)
{
    limit = bytes;
    former_ = std::make_unique<Former>();
}

SmallFiles::~SmallFiles() = default;

} // namespace kova::test
