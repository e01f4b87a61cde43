#include "reports/growth.hpp"

#include <gtest/gtest.h>

namespace kova::reports {
namespace {

struct Case {
    const char* what;
    std::vector<Span> spans;
    Twips sectionHeight;
    std::vector<Twips> tops;
    Twips grownHeight;
};

TEST(PushDown, MovesWhatBeginsBelowAGrownBox)
{
    const Case cases[]{
        {"nothing", {}, 500, {}, 500},
        {"nothing grows", {{0, 100, 100}, {200, 100, 100}}, 400, {0, 200}, 400},
        {"a box pushes what is below", {{0, 100, 250}, {200, 100, 100}}, 400, {0, 350}, 550},
        {"what begins at its very bottom is pushed", {{0, 100, 250}, {100, 100, 100}}, 400, {0, 250}, 550},
        {"what begins beside it stays", {{0, 100, 250}, {99, 100, 100}}, 400, {0, 99}, 550},
        {"what is above stays", {{0, 100, 100}, {200, 100, 300}}, 400, {0, 200}, 600},
        {"the farthest of a row counts, not the sum",
         {{0, 100, 250}, {0, 100, 400}, {200, 100, 100}},
         400,
         {0, 0, 500},
         700},
        {"rows add up", {{0, 100, 200}, {200, 100, 300}, {400, 100, 100}}, 600, {0, 300, 700}, 900},
        {"the order of the design does not matter",
         {{400, 100, 100}, {200, 100, 300}, {0, 100, 200}},
         600,
         {700, 300, 0},
         900},
        {"a line on the lower edge goes with it", {{0, 100, 200}, {400, 0, 0}}, 400, {0, 500}, 500},
        {"a line at a box's bottom is pushed", {{0, 100, 150}, {100, 0, 0}}, 100, {0, 150}, 150},
        {"less than the design changes nothing", {{0, 100, 20}, {200, 100, 100}}, 400, {0, 200}, 400},
        {"a box that ends below the next one's top pushes what is below itself only",
         {{0, 300, 500}, {200, 100, 100}, {300, 50, 50}},
         400,
         {0, 200, 500},
         600},
    };
    for (const Case& each : cases) {
        const Grown grown = PushDown(each.spans, each.sectionHeight);
        EXPECT_EQ(grown.tops, each.tops) << each.what;
        EXPECT_EQ(grown.sectionHeight, each.grownHeight) << each.what;
    }
}

} // namespace
} // namespace kova::reports
