#include "system/path_text.hpp"
#include "system/user_folders.hpp"
#include "tests/support/environment_variable.hpp"

#include <gtest/gtest.h>

namespace kova::system {

TEST(UserFoldersOnPosix, AreThoseThatTheDesktopNames)
{
    const test::EnvironmentVariable data("XDG_DATA_HOME", "/casa/joão/dados");
    const test::EnvironmentVariable settings("XDG_CONFIG_HOME", "/casa/joão/ajustes");
    EXPECT_EQ(TextOf(UserDataFolder()), "/casa/joão/dados");
    EXPECT_EQ(TextOf(UserSettingsFolder()), "/casa/joão/ajustes");
}

TEST(UserFoldersOnPosix, LieInTheUsersHomeWhereTheDesktopNamesNoFullPath)
{
    const test::EnvironmentVariable home("HOME", "/casa/joão");
    const test::EnvironmentVariable data("XDG_DATA_HOME", "dados");
    const test::EnvironmentVariable settings("XDG_CONFIG_HOME", "");
    EXPECT_EQ(TextOf(UserDataFolder()), "/casa/joão/.local/share");
    EXPECT_EQ(TextOf(UserSettingsFolder()), "/casa/joão/.config");
    EXPECT_EQ(TextOf(UserFolderOf("outro")), "/casa/joão/.outro");
}

TEST(UserFoldersOnPosix, AreNowhereWithoutAHome)
{
    const test::EnvironmentVariable home("HOME", "");
    const test::EnvironmentVariable data("XDG_DATA_HOME", "");
    const test::EnvironmentVariable settings("XDG_CONFIG_HOME", "");
    EXPECT_EQ(UserDataFolder(), "");
    EXPECT_EQ(UserSettingsFolder(), "");
    EXPECT_EQ(UserFolderOf("outro"), "");
}

TEST(UserFoldersOnPosix, HaveAFileOfPasswordsInTheHome) { EXPECT_EQ(ShownPasswordsFile(), "~/.pgpass"); }

} // namespace kova::system
