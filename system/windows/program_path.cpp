#include "system/program_path.hpp"

#include "system/windows/last_error.hpp"

namespace kova::system {

std::filesystem::path ProgramPath()
{
    std::wstring name(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
        if (length == 0)
            throw std::filesystem::filesystem_error("program", LastError());
        if (length < name.size())
            return std::filesystem::canonical(name.substr(0, length));
        // It was cut off.
        name.resize(2 * name.size());
    }
}

} // namespace kova::system
