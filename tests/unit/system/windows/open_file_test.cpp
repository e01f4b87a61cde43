#include "system/rename.hpp"
#include "system/whole_file.hpp"
#include "system/windows/handle.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

/// A file that another program has open.
class OpenFile : public FolderTest {
protected:
    OpenFile() { Write(file_, "antes"); }

    Handle OpenedWith(DWORD sharing) const
    {
        return Handle(::CreateFileW(PathOf(file_).c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    }

    const std::string file_ = In("ração.txt");
};

} // namespace

TEST_F(OpenFile, ThatMayGoIsReplaced)
{
    const Handle other = OpenedWith(ShareAll);
    ASSERT_TRUE(other.IsOpen());
    std::error_code error;
    EXPECT_TRUE(ReplaceWholeFile(file_, "depois", error)) << error.message();
    EXPECT_EQ(ContentOf(file_), "depois");
}

TEST_F(OpenFile, ThatIsKeptIsNotReplacedAndNothingStaysBesideIt)
{
    const Handle other = OpenedWith(FILE_SHARE_READ);
    ASSERT_TRUE(other.IsOpen());
    std::error_code error;
    EXPECT_FALSE(ReplaceWholeFile(file_, "depois", error));
    EXPECT_EQ(error.value(), ERROR_SHARING_VIOLATION);
    EXPECT_EQ(Names(), std::vector<std::string>{"ração.txt"});
    EXPECT_EQ(ContentOf(file_), "antes");
}

TEST_F(OpenFile, ThatIsKeptIsNotRenamed)
{
    const Handle other = OpenedWith(FILE_SHARE_READ);
    EXPECT_THROW(RenameWithoutReplacing(file_, In("outra.txt")), std::filesystem::filesystem_error);
    EXPECT_EQ(Names(), std::vector<std::string>{"ração.txt"});
}

} // namespace kova::system
