#include "family/data/engine/row_versions.hpp"

#include <gtest/gtest.h>

namespace kova::family::test {

TEST(RowVersions, KnowNothingOfARowThatWasNeverSelected)
{
    RowVersions versions;
    versions.Keep({{1, 5}});
    EXPECT_EQ(versions.Of(2), std::nullopt);
}

TEST(RowVersions, GoByTheOldestSelectionThatIsShown)
{
    RowVersions versions;
    auto list = versions.Keep({{1, 5}});
    const auto print = versions.Keep({{1, 6}});
    versions.Keep({{1, 7}});
    EXPECT_EQ(versions.Of(1), 5);
    list.reset();
    EXPECT_EQ(versions.Of(1), 6);
}

TEST(RowVersions, GoByTheLastSelectionWhereNoneIsShown)
{
    RowVersions versions;
    versions.Keep({{1, 5}, {2, 3}});
    versions.Keep({{1, 6}});
    EXPECT_EQ(versions.Of(1), 6);
    EXPECT_EQ(versions.Of(2), 3);
}

TEST(RowVersions, FollowAWriteOnlyWhereTheRowWasKnownAsItWasBefore)
{
    RowVersions versions;
    const auto known = versions.Keep({{1, 5}, {2, 3}});
    versions.Follow(1, 5, 6);
    versions.Follow(2, 4, 5);
    EXPECT_EQ(versions.Of(1), 6);
    EXPECT_EQ(versions.Of(2), 3);
}

TEST(RowVersions, KeepTheLastSixtyFourSelections)
{
    RowVersions versions;
    for (Key row = 1; row <= 64; ++row)
        versions.Keep({{row, 5}});
    EXPECT_EQ(versions.Of(1), 5);
    versions.Keep({{65, 5}});
    EXPECT_EQ(versions.Of(1), std::nullopt);
    EXPECT_EQ(versions.Of(2), 5);
}

TEST(RowVersions, DropOldSelectionsButNeverOneThatIsShown)
{
    RowVersions versions;
    const auto shown = versions.Keep({{1, 5}});
    versions.Keep({{2, 5}});
    for (Key other = 100; other < 1100; ++other)
        versions.Keep({{other, 1}});
    EXPECT_EQ(versions.Of(1), 5);
    EXPECT_EQ(versions.Of(2), std::nullopt);
    EXPECT_EQ(versions.Of(1099), 1);
}

} // namespace kova::family::test
