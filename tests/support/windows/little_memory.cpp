#include "tests/support/little_memory.hpp"

#include "tests/support/windows/replaced_call.hpp"

namespace kova::test {

namespace {

/// The original is found anew: the program's own way to it leads here.
void* TakeLittle(std::size_t bytes)
{
    constexpr std::size_t Most = std::size_t{32} << 20U;
    static const auto take = reinterpret_cast<void* (*)(std::size_t)>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"msvcrt.dll"), "malloc")));
    return bytes < Most ? take(bytes) : nullptr;
}

} // namespace

struct LittleMemory::Former {
    ReplacedCall take{"malloc", reinterpret_cast<void*>(&TakeLittle)};
};

LittleMemory::LittleMemory() : former_(std::make_unique<Former>()) { }

LittleMemory::~LittleMemory() = default;

} // namespace kova::test
