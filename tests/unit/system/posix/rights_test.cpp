// What others may do with the files that are made here.

#include "system/file_lock.hpp"
#include "system/whole_file.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

class RightsOnPosix : public FolderTest {
protected:
    std::filesystem::perms RightsTo(const std::string& name) const
    {
        return std::filesystem::status(PathOf(In(name))).permissions();
    }
    static constexpr auto OwnersAlone =
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
};

TEST_F(RightsOnPosix, ToALockedFileThatIsMadeAreTheOwnersAlone)
{
    std::error_code error;
    const FileLock waited = FileLock::Await(In("trava"), error);
    const FileLock tried = FileLock::Try(In("outra"), FileLock::Missing::Make, error);
    EXPECT_EQ(RightsTo("trava"), OwnersAlone);
    EXPECT_EQ(RightsTo("outra"), OwnersAlone);
}

TEST_F(RightsOnPosix, ToANewFileThatIsWrittenWholeAreTheOwnersAlone)
{
    std::error_code error;
    ASSERT_TRUE(ReplaceWholeFile(In("ajustes"), "x", error)) << error.message();
    EXPECT_EQ(RightsTo("ajustes"), OwnersAlone);
    std::filesystem::permissions(PathOf(In("ajustes")), std::filesystem::perms::all);
    ASSERT_TRUE(ReplaceWholeFile(In("ajustes"), "y", error)) << error.message();
    EXPECT_EQ(RightsTo("ajustes"), std::filesystem::perms::all);
}

TEST_F(RightsOnPosix, ToAFileStayWhenItTakesTheContentOfAnother)
{
    Write(In("ração"), "x");
    Write(In("cópia"), "");
    std::filesystem::permissions(PathOf(In("ração")), std::filesystem::perms::all);
    std::filesystem::permissions(PathOf(In("cópia")), OwnersAlone);
    CopyWholeFile(In("ração"), In("cópia"));
    EXPECT_EQ(RightsTo("cópia"), OwnersAlone);
}

} // namespace kova::system
