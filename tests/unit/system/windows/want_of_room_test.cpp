#include "system/want_of_room.hpp"

#include <gtest/gtest.h>

#include <windows.h>

namespace kova::system {

TEST(WantOfRoomOnWindows, IsWhatTheSystemCallsAFullDisk)
{
    for (const int number : {ERROR_DISK_FULL, ERROR_HANDLE_DISK_FULL, 1295})
        EXPECT_TRUE(IsWantOfRoom({number, std::system_category()})) << number;
    EXPECT_FALSE(IsWantOfRoom({ERROR_ACCESS_DENIED, std::system_category()}));
}

} // namespace kova::system
