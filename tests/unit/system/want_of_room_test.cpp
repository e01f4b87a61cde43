#include "system/want_of_room.hpp"

#include <gtest/gtest.h>

namespace kova::system {

TEST(WantOfRoom, IsAFullDiskAndAFileThatMayNotGrow)
{
    EXPECT_TRUE(IsWantOfRoom(std::make_error_code(std::errc::no_space_on_device)));
    EXPECT_TRUE(IsWantOfRoom(std::make_error_code(std::errc::file_too_large)));
}

TEST(WantOfRoom, IsNoOtherFailure)
{
    EXPECT_FALSE(IsWantOfRoom({}));
    EXPECT_FALSE(IsWantOfRoom(std::make_error_code(std::errc::permission_denied)));
    EXPECT_FALSE(IsWantOfRoom(std::make_error_code(std::errc::file_exists)));
}

} // namespace kova::system
