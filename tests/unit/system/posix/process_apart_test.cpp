#include "system/process_apart.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

namespace kova::system {

TEST(AProcessApart, EndsWithWhatItsWorkAnswers)
{
    const ProcessEnd end = RunApart([] { return 3; });
    EXPECT_FALSE(end.crashed);
    EXPECT_EQ(end.number, 3);
}

TEST(AProcessApart, SharesNothingWithThisOne)
{
    int count = 0;
    RunApart([&] { return ++count; });
    EXPECT_EQ(count, 0);
}

TEST(AProcessApart, TellsTheSignalOfACrash)
{
    const ProcessEnd end = RunApart([]() -> int {
        std::signal(SIGTERM, SIG_DFL);
        std::raise(SIGTERM);
        return 0;
    });
    EXPECT_TRUE(end.crashed);
    EXPECT_EQ(end.number, SIGTERM);
}

} // namespace kova::system
