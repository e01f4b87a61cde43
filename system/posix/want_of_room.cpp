#include "system/want_of_room.hpp"

#include <cerrno>

namespace kova::system {

bool IsWantOfRoom(const std::error_code& error)
{
    return error == std::errc::no_space_on_device || error == std::errc::file_too_large
        || error == std::error_code(EDQUOT, std::generic_category())
        || error == std::error_code(EDQUOT, std::system_category());
}

} // namespace kova::system
