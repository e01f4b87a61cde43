// A backup whose process ends in the middle.

#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/copies/database_backup.hpp"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace kova::family::test {

class KilledBackup : public ShopTest {
protected:
    bool IsThere(const std::string& name) const { return std::filesystem::exists(folder_ / name); }

    const std::string copy_ = folder_ / "copia.bak";
};

TEST_F(KilledBackup, LeavesNothingUnderItsNameAndStandsInNobodysWay)
{
    const pid_t child = fork();
    if (child == 0) {
        LongWork work;
        work.progress = [](long long, long long) { std::raise(SIGKILL); };
        BackUpDatabase(host_.DataSource(), copy_, work);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_FALSE(IsThere("copia.bak"));
    EXPECT_TRUE(IsThere("copia.bak.parcial"));
    BackUpDatabase(host_.DataSource(), copy_, {});
    EXPECT_TRUE(IsThere("copia.bak"));
    EXPECT_FALSE(IsThere("copia.bak.parcial"));
}

} // namespace kova::family::test
