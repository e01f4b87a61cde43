#include "system/access.hpp"
#include "system/whole_file.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

class AccessOnWindows : public FolderTest {
protected:
    AccessOnWindows()
    {
        Write(file_, "x");
        Allow(std::filesystem::perm_options::remove);
    }
    ~AccessOnWindows() override { Allow(std::filesystem::perm_options::add); }

    void Allow(std::filesystem::perm_options how)
    {
        std::filesystem::permissions(PathOf(file_), std::filesystem::perms::owner_write, how);
    }

    const std::string file_ = In("ração");
};

} // namespace

TEST_F(AccessOnWindows, ToAReadOnlyFileIsToReadIt)
{
    EXPECT_TRUE(MayRead(file_));
    EXPECT_FALSE(MayWrite(file_));
}

TEST_F(AccessOnWindows, ToAReadOnlyFileIsNotToReplaceIt)
{
    std::error_code error;
    EXPECT_FALSE(ReplaceWholeFile(file_, "y", error));
    EXPECT_EQ(error, std::errc::permission_denied);
    EXPECT_EQ(ContentOf(file_), "x");
}

} // namespace kova::system
