#include "system/want_of_room.hpp"

#include <gtest/gtest.h>

#include <cerrno>

namespace kova::system {

TEST(WantOfRoomOnPosix, IsAlsoAUsersShareThatIsUsedUp)
{
    EXPECT_TRUE(IsWantOfRoom({EDQUOT, std::generic_category()}));
    EXPECT_TRUE(IsWantOfRoom({EDQUOT, std::system_category()}));
    EXPECT_TRUE(IsWantOfRoom({ENOSPC, std::system_category()}));
}

} // namespace kova::system
