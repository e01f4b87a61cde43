#include "system/file_lock.hpp"
#include "system/rename.hpp"
#include "tests/unit/system/folder_fixture.hpp"

#include <atomic>
#include <thread>

namespace kova::system {

namespace {

class FileLockTest : public FolderTest {
protected:
    FileLock Try(FileLock::Missing missing = FileLock::Missing::Make)
    {
        error_.clear();
        return FileLock::Try(file_, missing, error_);
    }

    const std::string file_ = In("trava da ração");
    std::error_code error_;
};

} // namespace

TEST_F(FileLockTest, MakesTheFileAndLetsNobodyElseHaveIt)
{
    const FileLock lock = Try();
    EXPECT_TRUE(lock.IsHeld());
    EXPECT_TRUE(IsThere(file_));
    EXPECT_FALSE(Try().IsHeld());
    EXPECT_EQ(error_, std::errc::resource_unavailable_try_again);
}

TEST_F(FileLockTest, IsFreeAfterwardsAndLeavesTheFile)
{
    EXPECT_TRUE(Try().IsHeld());
    EXPECT_TRUE(IsThere(file_));
    EXPECT_TRUE(Try(FileLock::Missing::Fail).IsHeld());
}

TEST_F(FileLockTest, GoesAlongWhereItIsMoved)
{
    FileLock first = Try();
    FileLock second = std::move(first);
    EXPECT_FALSE(first.IsHeld());
    EXPECT_TRUE(second.IsHeld());
    EXPECT_FALSE(Try().IsHeld());
    second = FileLock();
    EXPECT_TRUE(Try().IsHeld());
}

TEST_F(FileLockTest, IsNotHadWhereTheFileIsMissingAndNotToBeMade)
{
    EXPECT_FALSE(Try(FileLock::Missing::Fail).IsHeld());
    EXPECT_EQ(error_, std::errc::no_such_file_or_directory);
    EXPECT_FALSE(IsThere(file_));
    EXPECT_FALSE(FileLock::Await(In("nenhuma/trava"), error_).IsHeld());
    EXPECT_EQ(error_, std::errc::no_such_file_or_directory);
}

TEST_F(FileLockTest, IsWaitedFor)
{
    FileLock lock = FileLock::Await(file_, error_);
    ASSERT_TRUE(lock.IsHeld());
    std::atomic<bool> had = false;
    std::thread other([&] {
        std::error_code error;
        const FileLock next = FileLock::Await(file_, error);
        had = next.IsHeld();
    });
    EXPECT_FALSE(had);
    lock = FileLock();
    other.join();
    EXPECT_TRUE(had);
}

TEST_F(FileLockTest, KeepsNobodyFromWritingRenamingAndRemovingTheFile)
{
    const FileLock lock = Try();
    Write(file_, "conteúdo");
    EXPECT_EQ(ContentOf(file_), "conteúdo");
    RenameWithoutReplacing(file_, In("ração"));
    EXPECT_EQ(ContentOf(In("ração")), "conteúdo");
    EXPECT_TRUE(Try().IsHeld()) << "another file bears the name now";
    EXPECT_TRUE(std::filesystem::remove(PathOf(In("ração"))));
}

} // namespace kova::system
