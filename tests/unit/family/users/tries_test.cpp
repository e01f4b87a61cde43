#include "tests/unit/family/users/users_fixture.hpp"

#include "family/users/tries.hpp"

#include <map>

namespace kova::family::test {

TEST(WaitsBetweenTries, DoubleFromTheThirdWrongOneOn)
{
    const std::map<int, long long> waits = {{0, 0},    {1, 0},    {2, 0},      {3, 2},
                                            {4, 4},    {5, 8},    {9, 128},    {10, 256},
                                            {11, 300}, {12, 300}, {1000, 300}, {2'000'000'000, 300}};
    for (const auto& [wrong, seconds] : waits)
        EXPECT_EQ(WaitAfter(wrong), seconds) << wrong;
}

TEST(WaitsBetweenTries, EndWithTheirTime)
{
    const Tries tries{4, 1000};
    EXPECT_EQ(tries.WaitAt(1000), 4);
    EXPECT_EQ(tries.WaitAt(1003), 1);
    EXPECT_EQ(tries.WaitAt(1004), 0);
    EXPECT_EQ(tries.WaitAt(900'000), 0);
    EXPECT_EQ((Tries{2, 1000}).WaitAt(1000), 0);
}

TEST(WaitsBetweenTries, AreToldInWords)
{
    const std::map<long long, std::string> words = {{1, "1 segundo"},
                                                    {2, "2 segundos"},
                                                    {59, "59 segundos"},
                                                    {60, "1 minuto"},
                                                    {61, "1 minuto e 1 segundo"},
                                                    {256, "4 minutos e 16 segundos"},
                                                    {300, "5 minutos"}};
    for (const auto& [seconds, told] : words)
        EXPECT_EQ(WordsOfWait(seconds), told);
}

using SecondsOfTheShop = UsersTest;

TEST_F(SecondsOfTheShop, AreTheServersOrThoseOfTheComputer)
{
    const long long before = SecondsNow(Data(), desk_.GetPlatform().Clock());
    desk_.now.time.hour += 1;
    const long long after = SecondsNow(Data(), desk_.GetPlatform().Clock());
    if (TestsRunOnServer()) {
        EXPECT_LT(after - before, 600);
        EXPECT_GE(after, before);
    } else {
        EXPECT_EQ(after - before, 3600);
        desk_.now = {{1970, 1, 2}, {0, 0, 5}};
        EXPECT_EQ(SecondsNow(Data(), desk_.GetPlatform().Clock()), 86405);
    }
}

} // namespace kova::family::test
