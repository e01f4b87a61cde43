#include "family/data/audit/code_ranges.hpp"

#include <gtest/gtest.h>

namespace kova::family::test {

TEST(CodeRanges, JoinCodesThatFollowEachOther)
{
    EXPECT_EQ(RangesOf({}), "");
    EXPECT_EQ(RangesOf({7}), "7");
    EXPECT_EQ(RangesOf({3, 4, 5, 6, 7, 12, 20, 21}), "3-7,12,20-21");
}

TEST(CodeRanges, AreReadAsTheyWereWritten)
{
    EXPECT_EQ(ReadRanges("3-7,12,20-21"), (std::vector<CodeRange>{{3, 7}, {12, 12}, {20, 21}}));
    EXPECT_TRUE(ReadRanges("").empty());
}

TEST(CodeRanges, LeaveOutWhatCannotBeRead)
{
    EXPECT_EQ(ReadRanges("3-x,,12,9-,-4,99999999999999999999,5"), (std::vector<CodeRange>{{12, 12}, {5, 5}}));
}

} // namespace kova::family::test
