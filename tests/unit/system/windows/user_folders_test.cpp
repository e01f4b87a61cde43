#include "system/user_folders.hpp"

#include <gtest/gtest.h>

namespace kova::system {

TEST(UserFoldersOnWindows, AreTwoFullPaths)
{
    EXPECT_TRUE(UserDataFolder().is_absolute());
    EXPECT_TRUE(UserSettingsFolder().is_absolute());
    EXPECT_NE(UserDataFolder(), UserSettingsFolder());
    EXPECT_EQ(UserFolderOf("outro"), UserSettingsFolder() / "outro");
}

} // namespace kova::system
