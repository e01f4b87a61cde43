#include "system/library.hpp"

#include "system/library_ending.hpp"

namespace kova::system {

namespace {

constexpr std::string_view Beginning = "lib";

}

std::string LibraryFile(std::string_view name)
{
    return std::string(Beginning).append(name).append(LibraryEnding());
}

std::string LibraryNameIn(std::string_view file)
{
    const std::string_view ending = LibraryEnding();
    if (file.size() <= Beginning.size() + ending.size() || !file.starts_with(Beginning)
        || !file.ends_with(ending))
        return {};
    file.remove_prefix(Beginning.size());
    file.remove_suffix(ending.size());
    return std::string(file);
}

} // namespace kova::system
