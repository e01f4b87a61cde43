#include "timetable/grid_measures.hpp"

#include <gtest/gtest.h>

#include <random>

namespace kova::timetable {

namespace {

using Lanes = std::vector<Lane>;

TEST(Lanes, OfPartsApartAreTheWholeBreadth)
{
    EXPECT_EQ(LanesOf({}), Lanes{});
    EXPECT_EQ(LanesOf({{60, 120}, {120, 180}, {200, 260}}), (Lanes{{0, 1}, {0, 1}, {0, 1}}));
}

TEST(Lanes, AreSharedByWhatOverlaps)
{
    EXPECT_EQ(LanesOf({{60, 120}, {60, 90}, {90, 150}, {150, 160}}), (Lanes{{0, 2}, {1, 2}, {1, 2}, {0, 1}}));
    EXPECT_EQ(LanesOf({{0, 100}, {10, 20}, {15, 30}, {95, 110}}), (Lanes{{0, 3}, {1, 3}, {2, 3}, {1, 3}}))
        << "the last overlaps the first only, and is of its group";
}

TEST(Lanes, NeverLayOnePartOverAnother)
{
    std::mt19937 chance(7);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(chance); };
    for (int day = 0; day < 200; ++day) {
        std::vector<family::PartOfDay> parts;
        for (int from = 0; from < 1400; from += upTo(40))
            parts.push_back({from, from + 1 + upTo(180)});
        const Lanes lanes = LanesOf(parts);
        ASSERT_EQ(lanes.size(), parts.size());
        for (std::size_t one = 0; one < parts.size(); ++one) {
            EXPECT_LT(lanes[one].at, lanes[one].of);
            for (std::size_t other = 0; other < one; ++other) {
                const bool overlap =
                    parts[one].from < parts[other].until && parts[other].from < parts[one].until;
                if (overlap) {
                    EXPECT_NE(lanes[one].at, lanes[other].at);
                    EXPECT_EQ(lanes[one].of, lanes[other].of);
                }
            }
        }
    }
}

TEST(GridMeasures, FindTheMinuteAndTheColumnThatTheyPut)
{
    GridMeasures measures;
    measures.columns = 3;
    for (const int step : {5, 10, 15, 20, 30, 60}) {
        measures.step = step;
        for (int minute = 0; minute < GridMeasures::MinutesOfDay; minute += step)
            EXPECT_EQ(measures.LineOf(measures.MinuteAt(measures.Top(minute))), minute) << step;
    }
    EXPECT_EQ(measures.ColumnAt(measures.Left(2)), 2);
    EXPECT_EQ(measures.ColumnAt(measures.Left(2) - 1), 1);
    EXPECT_EQ(measures.ColumnAt(measures.Left(3)), -1);
    EXPECT_EQ(measures.ColumnAt(0), -1) << "that is the strip of hours";
}

TEST(GridMeasures, DrawWhatIsShortAsHighAsALineWithinTheDay)
{
    GridMeasures measures;
    measures.columns = 1;
    const QRect morning = measures.Block(0, {60, 61}, {0, 1}),
                night = measures.Block(0, {1439, 1440}, {0, 1});
    EXPECT_GE(morning.height(), measures.lineHeight - 2);
    EXPECT_GE(night.height(), measures.lineHeight - 2);
    EXPECT_LE(night.bottom(), measures.Top(GridMeasures::MinutesOfDay));
    const QRect left = measures.Block(0, {60, 120}, {0, 2}), right = measures.Block(0, {60, 120}, {1, 2});
    EXPECT_FALSE(left.intersects(right));
}

} // namespace

} // namespace kova::timetable
