#include "system/access.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

using AccessTest = FolderTest;

}

TEST_F(AccessTest, IsHadToTheUsersOwnFilesAndFolders)
{
    Write(In("ração"), "x");
    for (const std::string& path : {In("ração"), In("")}) {
        EXPECT_TRUE(MayRead(path)) << path;
        EXPECT_TRUE(MayWrite(path)) << path;
    }
    EXPECT_EQ(ContentOf(In("ração")), "x");
}

TEST_F(AccessTest, IsHadToNothingThatIsMissing)
{
    EXPECT_FALSE(MayRead(In("nenhum")));
    EXPECT_FALSE(MayWrite(In("nenhum")));
    EXPECT_FALSE(IsThere(In("nenhum")));
}

} // namespace kova::system
