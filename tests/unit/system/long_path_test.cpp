#include "system/access.hpp"
#include "system/file_lock.hpp"
#include "system/flush.hpp"
#include "system/rename.hpp"
#include "system/whole_file.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

/// A folder below several others whose names together are longer than what old programs can name.
class LongPath : public FolderTest {
protected:
    LongPath()
    {
        for (int depth = 0; depth < 4; ++depth)
            folder_ += "/" + std::string(90, static_cast<char>('a' + depth)) + "ção";
        std::filesystem::create_directories(PathOf(In(folder_)));
    }

    std::string Deep(const std::string& name) const { return In(folder_ + "/" + name); }

private:
    std::string folder_ = "fundo";
};

} // namespace

TEST_F(LongPath, NamesAFileThatIsWrittenReadCopiedAndRenamed)
{
    std::error_code error;
    ASSERT_TRUE(ReplaceWholeFile(Deep("a.txt"), "um", error)) << error.message();
    ASSERT_TRUE(ReplaceWholeFile(Deep("a.txt"), "dois", error)) << error.message();
    EXPECT_EQ(ReadWholeFile(Deep("a.txt"), error), "dois");
    FlushFile(Deep("a.txt"));
    Write(Deep("b.txt"), "");
    CopyWholeFile(Deep("a.txt"), Deep("b.txt"));
    RenameWithoutReplacing(Deep("b.txt"), Deep("c.txt"));
    EXPECT_EQ(ContentOf(Deep("c.txt")), "dois");
}

TEST_F(LongPath, NamesAFileThatIsHeldAndAskedAbout)
{
    std::error_code error;
    const FileLock lock = FileLock::Try(Deep("a.txt"), FileLock::Missing::Make, error);
    EXPECT_TRUE(lock.IsHeld()) << error.message();
    EXPECT_FALSE(FileLock::Try(Deep("a.txt"), FileLock::Missing::Make, error).IsHeld());
    EXPECT_TRUE(MayRead(Deep("a.txt")));
    EXPECT_TRUE(MayWrite(Deep("")));
}

} // namespace kova::system
