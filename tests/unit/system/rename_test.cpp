#include "system/rename.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

class RenameTest : public FolderTest {
protected:
    std::error_code ErrorOf(const std::string& from, const std::string& to)
    {
        try {
            RenameWithoutReplacing(In(from), In(to));
        } catch (const std::filesystem::filesystem_error& error) {
            return error.code();
        }
        return {};
    }
};

} // namespace

TEST_F(RenameTest, GivesAFileItsName)
{
    Write(In("ração"), "x");
    EXPECT_EQ(ErrorOf("ração", "osso"), std::error_code());
    EXPECT_EQ(ContentOf(In("osso")), "x");
    EXPECT_FALSE(IsThere(In("ração")));
}

TEST_F(RenameTest, NeverReplacesAFile)
{
    Write(In("ração"), "x");
    Write(In("osso"), "y");
    EXPECT_EQ(ErrorOf("ração", "osso"), std::errc::file_exists);
    EXPECT_EQ(ContentOf(In("ração")), "x");
    EXPECT_EQ(ContentOf(In("osso")), "y");
}

TEST_F(RenameTest, SaysThatThereIsNoSuchFile)
{
    EXPECT_EQ(ErrorOf("ração", "osso"), std::errc::no_such_file_or_directory);
}

} // namespace kova::system
