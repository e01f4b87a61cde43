#include "system/access.hpp"
#include "tests/unit/system/folder_fixture.hpp"

#include <unistd.h>

namespace kova::system {

namespace {

/// As somebody who has no right to what belongs to others.
class AccessOnPosix : public FolderTest {
protected:
    AccessOnPosix()
    {
        Write(file_, "x");
        const std::filesystem::path folder = PathOf(file_).parent_path();
        for (const std::filesystem::path& opened : {folder, folder.parent_path()})
            std::filesystem::permissions(opened, std::filesystem::perms::all);
    }
    ~AccessOnPosix() override { Become(former_); }

    static bool Become(uid_t user) { return ::seteuid(user) == 0; }

    const std::string file_ = In("ração");
    const uid_t former_ = ::geteuid();
};

} // namespace

TEST_F(AccessOnPosix, GoesByTheRightsThatTheProcessActsWith)
{
    using std::filesystem::perms;
    std::filesystem::permissions(PathOf(file_), perms::owner_read | perms::group_read | perms::others_read);
    if (former_ == 0) {
        ASSERT_TRUE(MayWrite(file_));
        ASSERT_TRUE(Become(65534));
    }
    EXPECT_TRUE(MayRead(file_));
    EXPECT_FALSE(MayWrite(file_));
}

} // namespace kova::system
