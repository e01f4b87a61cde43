#include "system/program_path.hpp"

#include "system/windows/last_error.hpp"

namespace kova::system {

namespace {

/// The file that is loaded there; the program's where it is null.
std::filesystem::path FileOf(HMODULE module)
{
    std::wstring name(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size()));
        if (length == 0)
            throw std::filesystem::filesystem_error("program", LastError());
        if (length < name.size())
            return std::filesystem::canonical(name.substr(0, length));
        // It was cut off.
        name.resize(2 * name.size());
    }
}

} // namespace

std::filesystem::path ProgramPath() { return FileOf(nullptr); }

std::filesystem::path OwnPath()
{
    // Each library is linked with a function of this name for itself.
    HMODULE module = nullptr;
    if (!::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS
                                  | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                              reinterpret_cast<LPCWSTR>(&OwnPath), &module))
        throw std::filesystem::filesystem_error("library", LastError());
    return FileOf(module);
}

bool ProgramWasReplaced() { return false; }

} // namespace kova::system
