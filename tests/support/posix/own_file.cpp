#include "tests/support/own_file.hpp"

#include <filesystem>

namespace kova::test {

bool IsForItsOwnerAlone(const std::string& path)
{
    using std::filesystem::perms;
    return std::filesystem::status(path).permissions() == (perms::owner_read | perms::owner_write);
}

} // namespace kova::test
