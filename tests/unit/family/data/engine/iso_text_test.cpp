#include "family/data/engine/iso_text.hpp"

#include <gtest/gtest.h>

namespace kova::family::test {

TEST(IsoTexts, AreDatesTimesAndMomentsThatThereAre)
{
    for (const char* date : {"2026-11-20", "2028-02-29", "1999-09-09"})
        EXPECT_TRUE(IsIsoDate(date)) << date;
    for (const char* none : {"", "2026-11-2", "2026-11-200", "2027-02-29", "2026-13-01", "20/11/2026",
                             "2026-1a-20", "2026-11-20 "})
        EXPECT_FALSE(IsIsoDate(none)) << none;
    for (const char* time : {"00:00", "09:59", "23:59"})
        EXPECT_TRUE(IsIsoTime(time)) << time;
    for (const char* none : {"", "24:00", "09:60", "9:00", "09:0", "09-00", "09:000"})
        EXPECT_FALSE(IsIsoTime(none)) << none;
    EXPECT_TRUE(IsIsoEndTime("24:00"));
    EXPECT_TRUE(IsIsoEndTime("23:59"));
    for (const char* none : {"24:01", "25:00", ""})
        EXPECT_FALSE(IsIsoEndTime(none)) << none;
    EXPECT_TRUE(IsIsoMoment("2026-11-20 23:59:59"));
    for (const char* none : {"2026-11-20 23:59:60", "2026-11-20 24:00:00", "2026-11-31 23:59:59",
                             "2026-11-20", "2026-11-20T23:59:59", "2026-11-20 23:59"})
        EXPECT_FALSE(IsIsoMoment(none)) << none;
}

TEST(IsoTexts, MayBearTheZoneOfAMoment)
{
    for (const char* moment :
         {"2026-11-20 23:59:59", "2026-11-20 23:59:59-03:00", "2026-11-20 00:00:00+05:45"})
        EXPECT_TRUE(IsMomentOfZone(moment)) << moment;
    for (const char* none :
         {"", "2026-11-20", "2026-11-20 23:59:59-03", "2026-11-20 23:59:59Z", "2026-11-20 23:59:59 03:00",
          "2026-11-31 23:59:59-03:00", "2026-11-20 23:59:59-03:00 "})
        EXPECT_FALSE(IsMomentOfZone(none)) << none;
    EXPECT_FALSE(IsIsoMoment("2026-11-20 23:59:59-03:00"));
    EXPECT_EQ(WithoutZone("2026-11-20 23:59:59-03:00"), "2026-11-20 23:59:59");
    EXPECT_EQ(ShownMoment("2026-11-20 23:59:59-03:00"), "20/11/2026 23:59:59");
}

TEST(IsoTexts, AreShownAsPeopleWriteThem)
{
    EXPECT_EQ(ShownDate("2026-11-20"), "20/11/2026");
    EXPECT_EQ(ShownDate("2026-11"), "2026-11") << "it is no date";
    EXPECT_EQ(ShownMoment("2026-11-20 09:04:05"), "20/11/2026 09:04:05");
    EXPECT_EQ(ShownMoment("2026-11-20"), "20/11/2026");
    EXPECT_EQ(ShownMoment("2026-11-2"), "2026-11-2");
    EXPECT_EQ(ShownDuration(0), "00:00");
    EXPECT_EQ(ShownDuration(60), "01:00");
    EXPECT_EQ(ShownDuration(6059), "100:59");
}

TEST(IsoTexts, AreMadeOfDatesAndRead)
{
    const DateTime moment{{2026, 1, 2}, {3, 4, 5}};
    EXPECT_EQ(IsoDate(moment.date), "2026-01-02");
    EXPECT_EQ(IsoMoment(moment), "2026-01-02 03:04:05");
    EXPECT_EQ(ReadIsoMoment("2026-01-02", "03:04"), (DateTime{{2026, 1, 2}, {3, 4, 0}}));
    EXPECT_EQ(ReadIsoMoment("2026-01", "03"), (DateTime{{2026, 1, 0}, {3, 0, 0}}));
}

} // namespace kova::family::test
