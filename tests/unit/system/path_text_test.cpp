#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

using PathText = FolderTest;

}

TEST_F(PathText, IsUtf8InEveryPath)
{
    EXPECT_EQ(PathOf("São João/ação ½ €.db"), std::filesystem::path(u8"São João/ação ½ €.db"));
    EXPECT_EQ(TextOf(std::filesystem::path(u8"ação ½ €.db")), "ação ½ €.db");
}

TEST_F(PathText, ComesBackFromItsPath)
{
    for (const char* text : {"", "a", "Conceição/ação.db", "../é"})
        EXPECT_EQ(TextOf(PathOf(text)), text);
}

TEST_F(PathText, NamesTheFileThatTheSystemListsByThatName)
{
    Write(In("ração.txt"), "x");
    EXPECT_EQ(Names(), std::vector<std::string>{"ração.txt"});
}

} // namespace kova::system
