#include "system/user_folders.hpp"
#include "system/windows/wide_text.hpp"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace kova::system {

TEST(UserFoldersOnWindows, AreTwoFullPaths)
{
    EXPECT_TRUE(UserDataFolder().is_absolute());
    EXPECT_TRUE(UserSettingsFolder().is_absolute());
    EXPECT_NE(UserDataFolder(), UserSettingsFolder());
    EXPECT_EQ(UserFolderOf("outro"), UserSettingsFolder() / "outro");
}

TEST(UserFoldersOnWindows, HaveTheFileOfPasswordsInTheFolderOfServers)
{
    wchar_t full[MAX_PATH] = L"";
    ASSERT_NE(::ExpandEnvironmentStringsW(Wide(ShownPasswordsFile()).c_str(), full, MAX_PATH), 0U);
    EXPECT_EQ(std::wstring(full), (UserFolderOf("postgresql") / "pgpass.conf").wstring());
}

} // namespace kova::system
