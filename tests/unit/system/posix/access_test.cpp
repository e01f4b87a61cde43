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
    std::filesystem::perms RightsAfterwards(std::filesystem::perms before)
    {
        std::filesystem::permissions(PathOf(file_), before);
        KeepFromOthers(file_);
        return std::filesystem::status(PathOf(file_)).permissions();
    }

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

TEST_F(AccessOnPosix, IsTakenFromOthersAndLeftToAGroupThatMayWrite)
{
    const auto rights = [](int mode) { return static_cast<std::filesystem::perms>(mode); };
    EXPECT_EQ(RightsAfterwards(rights(0644)), rights(0600));
    EXPECT_EQ(RightsAfterwards(rights(0640)), rights(0600));
    EXPECT_EQ(RightsAfterwards(rights(0666)), rights(0660));
    EXPECT_EQ(RightsAfterwards(rights(0660)), rights(0660));
    EXPECT_EQ(RightsAfterwards(rights(0400)), rights(0400));
    KeepFromOthers(In("nenhum"));
}

} // namespace kova::system
