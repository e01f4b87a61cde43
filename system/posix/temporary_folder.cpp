#include "system/temporary_folder.hpp"

#include "system/path_text.hpp"
#include "system/posix/descriptor.hpp"

#include <cstdlib>

namespace kova::system {

TemporaryFolder::TemporaryFolder(std::string_view beginning)
{
    std::string name = TextOf(std::filesystem::temp_directory_path() / PathOf(beginning)) + "-XXXXXX";
    if (::mkdtemp(name.data()) == nullptr)
        throw std::system_error(LastError(), name);
    path_ = PathOf(name);
}

} // namespace kova::system
