#include "tests/support/full_temporary_folder.hpp"

#include "system/path_text.hpp"
#include "system/temporary_folder.hpp"
#include "tests/support/environment_variable.hpp"
#include "tests/support/windows/replaced_call.hpp"

#include <filesystem>
#include <string_view>

namespace kova::test {

namespace {

/// The original is found anew: the program's own way to it leads here. No byte at all would be taken for an
/// unknown number by the language's library.
BOOL TellRoom(LPCWSTR folder, PULARGE_INTEGER available, PULARGE_INTEGER all, PULARGE_INTEGER free)
{
    static const auto ask = reinterpret_cast<decltype(&::GetDiskFreeSpaceExW)>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "GetDiskFreeSpaceExW")));
    const BOOL isTold = ask(folder, available, all, free);
    if (isTold && available != nullptr
        && std::wstring_view(folder).starts_with(std::filesystem::temp_directory_path().native()))
        available->QuadPart = 1;
    return isTold;
}

} // namespace

struct FullTemporaryFolder::Former {
    system::TemporaryFolder folder{"cheia"};
    EnvironmentVariable variable{"TMP", system::TextOf(folder.Path())};
    ReplacedCall room{"GetDiskFreeSpaceExW", reinterpret_cast<void*>(&TellRoom)};
};

FullTemporaryFolder::FullTemporaryFolder() : former_(std::make_unique<Former>()) { }

FullTemporaryFolder::~FullTemporaryFolder() = default;

std::string FullTemporaryFolder::Place() { return system::TextOf(std::filesystem::temp_directory_path()); }

} // namespace kova::test
