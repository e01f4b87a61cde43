#include "system/want_of_room.hpp"

#include <gtest/gtest.h>

#include <windows.h>

namespace kova::system {

TEST(WantOfRoomOnWindows, IsWhatTheSystemCallsAFullDisk)
{
    const auto isWantOfRoom = [](long number) {
        return IsWantOfRoom({static_cast<int>(number), std::system_category()});
    };
    for (const long number : {ERROR_DISK_FULL, ERROR_HANDLE_DISK_FULL, 1295L})
        EXPECT_TRUE(isWantOfRoom(number)) << number;
    EXPECT_FALSE(isWantOfRoom(ERROR_ACCESS_DENIED));
}

} // namespace kova::system
