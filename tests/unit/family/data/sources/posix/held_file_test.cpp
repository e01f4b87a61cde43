// A file that is open here stays known as open to other programs.

#include "tests/unit/family/data/sources/data_source_fixture.hpp"

#include "family/data/engine/database.hpp"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kova::family::test {

class HeldFile : public DataSource {
protected:
    /// Whether another program would be told that somebody has the file open. A program's own locks are no
    /// obstacle to itself, so a child asks.
    static bool IsHeld(const std::string& path)
    {
        constexpr off_t FirstLockedByte = 0x40000000, LockedBytes = 512;
        const pid_t child = ::fork();
        if (child == 0) {
            const int file = ::open(path.c_str(), O_RDWR);
            struct flock lock = {};
            lock.l_type = F_WRLCK;
            lock.l_whence = SEEK_SET;
            lock.l_start = FirstLockedByte;
            lock.l_len = LockedBytes;
            const bool asked = file >= 0 && ::fcntl(file, F_GETLK, &lock) == 0;
            ::_exit(!asked ? 2 : lock.l_type == F_UNLCK ? 0 : 1);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) != 2);
        return WIFEXITED(status) && WEXITSTATUS(status) == 1;
    }
};

TEST_F(HeldFile, IsHeldAsLongAsItIsOpen)
{
    const std::string path = MakeEmptyShop("loja.db");
    EXPECT_FALSE(IsHeld(path));
    auto database = OpenDatabase(path);
    EXPECT_TRUE(IsHeld(path));
    database.reset();
    EXPECT_FALSE(IsHeld(path));
}

// Whoever finds it free believes to be the last one to close it, and takes its log away: what is written
// here from then on would be lost.
TEST_F(HeldFile, IsHeldAlsoAfterItWasLookedAtOrOpenedOnceMore)
{
    const std::string path = MakeEmptyShop("loja.db");
    const auto database = OpenDatabase(path);
    EXPECT_FALSE(CheckDataSource(path));
    EXPECT_TRUE(IsHeld(path)) << "looked at";
    OpenDatabase(path);
    EXPECT_TRUE(IsHeld(path)) << "opened for work";
    OpenForReading(path);
    EXPECT_TRUE(IsHeld(path)) << "opened for reading";
    OpenNewestForReading(path);
    EXPECT_TRUE(IsHeld(path)) << "opened for reading as the newest";
    EXPECT_TRUE(DataSourceExists(path));
    EXPECT_TRUE(IsHeld(path)) << "asked for";
}

} // namespace kova::family::test
