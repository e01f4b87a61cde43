#include "system/temporary_folder.hpp"

#include "system/path_text.hpp"
#include "system/windows/last_error.hpp"

#include <random>

namespace kova::system {

/// The place for what is temporary is the user's own here, and nobody else sees into it.
TemporaryFolder::TemporaryFolder(std::string_view beginning)
{
    std::random_device random;
    const std::filesystem::path place = std::filesystem::temp_directory_path();
    do {
        path_ = place / PathOf(std::string(beginning) + "-" + std::to_string(random()));
        if (::CreateDirectoryW(path_.c_str(), nullptr))
            return;
    } while (::GetLastError() == ERROR_ALREADY_EXISTS);
    throw std::system_error(LastError(), TextOf(path_));
}

} // namespace kova::system
