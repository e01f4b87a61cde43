#include "tests/support/windows/replaced_call.hpp"

#include <psapi.h>

#include <array>
#include <string_view>

namespace kova::test {

namespace {

void Write(void** address, void* value)
{
    DWORD former = 0;
    ::VirtualProtect(address, sizeof value, PAGE_READWRITE, &former);
    *address = value;
    ::VirtualProtect(address, sizeof value, former, &former);
}

/// What the library wants of others; null where it wants nothing.
const IMAGE_IMPORT_DESCRIPTOR* ImportsOf(const BYTE* library)
{
    const auto* start = reinterpret_cast<const IMAGE_DOS_HEADER*>(library);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(library + start->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    return imports.VirtualAddress == 0
        ? nullptr
        : reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(library + imports.VirtualAddress);
}

} // namespace

void ReplacedCall::ReplaceIn(HMODULE library, const char* name, void* replacement)
{
    auto* base = reinterpret_cast<BYTE*>(library);
    const IMAGE_IMPORT_DESCRIPTOR* from = ImportsOf(base);
    for (; from != nullptr && from->Name != 0; ++from) {
        if (from->OriginalFirstThunk == 0)
            continue;
        const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + from->OriginalFirstThunk);
        auto* addresses = reinterpret_cast<void**>(base + from->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++addresses) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
                continue;
            const auto* wanted =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (std::string_view(wanted->Name) != name)
                continue;
            places_.push_back({addresses, *addresses});
            Write(addresses, replacement);
        }
    }
}

ReplacedCall::ReplacedCall(const char* name, void* replacement)
{
    std::array<HMODULE, 512> libraries{};
    DWORD bytes = 0;
    ::K32EnumProcessModules(::GetCurrentProcess(), libraries.data(), sizeof libraries, &bytes);
    const HMODULE system = ::GetModuleHandleW(L"kernel32.dll");
    for (std::size_t at = 0; at < bytes / sizeof(HMODULE) && at < libraries.size(); ++at) {
        // Its own way leads on to where the call is done.
        if (libraries[at] != system)
            ReplaceIn(libraries[at], name, replacement);
    }
}

ReplacedCall::~ReplacedCall()
{
    for (const Place& place : places_)
        Write(place.address, place.former);
}

} // namespace kova::test
