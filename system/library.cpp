#include "system/library.hpp"

#include "system/library_ending.hpp"

namespace kova::system {

std::string LibraryFile(std::string_view name)
{
    return std::string(LibraryBeginning()).append(name).append(LibraryEnding());
}

std::string LibraryNameIn(std::string_view file)
{
    const std::string_view beginning = LibraryBeginning();
    const std::string_view ending = LibraryEnding();
    if (file.size() <= beginning.size() + ending.size() || !file.starts_with(beginning)
        || !file.ends_with(ending))
        return {};
    file.remove_prefix(beginning.size());
    file.remove_suffix(ending.size());
    return std::string(file);
}

} // namespace kova::system
