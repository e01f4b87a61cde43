#include "system/temporary_folder.hpp"

namespace kova::system {

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace kova::system
