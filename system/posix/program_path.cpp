#include "system/program_path.hpp"

#include <dlfcn.h>
#include <link.h>

namespace kova::system {

std::filesystem::path ProgramPath() { return std::filesystem::canonical("/proc/self/exe"); }

std::filesystem::path OwnPath()
{
    // Each library is linked with a function of this name for itself.
    Dl_info place{};
    link_map* file = nullptr;
    const int found = ::dladdr1(reinterpret_cast<const void*>(&OwnPath), &place,
                                reinterpret_cast<void**>(&file), RTLD_DL_LINKMAP);
    // The program itself goes without a name there.
    const bool isLibrary = found != 0 && file != nullptr && *file->l_name != '\0';
    return isLibrary ? std::filesystem::canonical(file->l_name) : ProgramPath();
}

bool ProgramWasReplaced()
{
    std::error_code unreadable;
    const std::filesystem::path file = std::filesystem::read_symlink("/proc/self/exe", unreadable);
    return !unreadable && file.native().ends_with(" (deleted)") && !std::filesystem::exists(file, unreadable);
}

} // namespace kova::system
