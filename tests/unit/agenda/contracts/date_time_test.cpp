#include "agenda/contracts/date_time.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"

#include <gtest/gtest.h>

namespace kova {

using test::NumberOfFailure;

TEST(Date, CountsDaysFromTheEndOf1899)
{
    EXPECT_EQ(DayNumber({1899, 12, 30}), 0);
    EXPECT_EQ(DayNumber({1900, 1, 1}), 2);
    EXPECT_EQ(DayNumber({2000, 1, 1}), 36526);
    EXPECT_EQ(DayNumber({1899, 12, 29}), -1);
    EXPECT_EQ(DayNumber({100, 1, 1}), -657434);
    EXPECT_EQ(DayNumber({9999, 12, 31}), 2958465);
}

TEST(Date, ComesBackFromEveryDayNumber)
{
    Date expected{100, 1, 1};
    for (Long day = -657434; day <= 2958465; ++day) {
        ASSERT_EQ(DateOfDayNumber(day), expected) << day;
        ASSERT_EQ(DayNumber(expected), day);
        if (++expected.day > DaysOfMonth(expected.year, expected.month)) {
            expected.day = 1;
            if (++expected.month > 12) {
                expected.month = 1;
                ++expected.year;
            }
        }
    }
}

TEST(Date, OverflowsOutsideTheCalendar)
{
    EXPECT_EQ(NumberOfFailure([] { DateOfDayNumber(2958466); }), 6);
    EXPECT_EQ(NumberOfFailure([] { DateOfDayNumber(-657435); }), 6);
    EXPECT_EQ(NumberOfFailure([] { AddDays({9999, 12, 31}, 1); }), 6);
    EXPECT_EQ(NumberOfFailure([] { AddDays({2024, 1, 1}, 2147483647); }), 6);
}

TEST(Date, AddsDaysAcrossMonthsAndYears)
{
    EXPECT_EQ(AddDays({2024, 2, 28}, 1), (Date{2024, 2, 29}));
    EXPECT_EQ(AddDays({2023, 2, 28}, 1), (Date{2023, 3, 1}));
    EXPECT_EQ(AddDays({2023, 12, 31}, 1), (Date{2024, 1, 1}));
    EXPECT_EQ(AddDays({2024, 3, 1}, -1), (Date{2024, 2, 29}));
    EXPECT_EQ(AddDays({2024, 1, 31}, 365), (Date{2025, 1, 30}));
}

TEST(Date, KnowsTheLengthOfEachMonth)
{
    EXPECT_EQ(DaysOfMonth(2024, 2), 29);
    EXPECT_EQ(DaysOfMonth(2023, 2), 28);
    EXPECT_EQ(DaysOfMonth(1900, 2), 28);
    EXPECT_EQ(DaysOfMonth(2000, 2), 29);
    EXPECT_EQ(DaysOfMonth(2024, 4), 30);
    EXPECT_EQ(DaysOfMonth(2024, 12), 31);
    EXPECT_EQ(NumberOfFailure([] { DaysOfMonth(2024, 13); }), 5);
    EXPECT_EQ(NumberOfFailure([] { DaysOfMonth(2024, 0); }), 5);
}

TEST(Date, KnowsTheWeekday)
{
    EXPECT_EQ(Weekday({1899, 12, 30}), 7);
    EXPECT_EQ(Weekday({2024, 6, 2}), 1);
    EXPECT_EQ(Weekday({2024, 6, 8}), 7);
    EXPECT_EQ(Weekday({1899, 12, 24}), 1);
    EXPECT_EQ(Weekday({100, 1, 1}), 6);
}

TEST(Time, AddsMinutesAcrossMidnight)
{
    const DateTime late{{2024, 2, 29}, {23, 50, 30}};
    EXPECT_EQ(AddMinutes(late, 15), (DateTime{{2024, 3, 1}, {0, 5, 30}}));
    EXPECT_EQ(AddMinutes(late, -1431), (DateTime{{2024, 2, 28}, {23, 59, 30}}));
    EXPECT_EQ(AddMinutes(late, 2 * 1440), (DateTime{{2024, 3, 2}, {23, 50, 30}}));
    EXPECT_EQ(AddMinutes(late, 0), late);
}

TEST(Date, IsReadAsDayMonthYear)
{
    EXPECT_EQ(ParseDate("29/02/2024"), (Date{2024, 2, 29}));
    EXPECT_EQ(ParseDate("1/3/2024"), (Date{2024, 3, 1}));
    for (const char* text :
         {"", "__/__/____", "29/02/2023", "31/04/2024", "00/01/2024", "01/13/2024", "01/01/24", "01/01/0099",
          "01-01-2024", "01/01/20245", " 01/01/2024", "2024/01/01", "01/01"})
        EXPECT_FALSE(ParseDate(text)) << text;
}

TEST(Time, IsReadAsHourMinuteSecond)
{
    EXPECT_EQ(ParseTime("08:30"), (TimeOfDay{8, 30, 0}));
    EXPECT_EQ(ParseTime("8:30"), (TimeOfDay{8, 30, 0}));
    EXPECT_EQ(ParseTime("23:59:59"), (TimeOfDay{23, 59, 59}));
    for (const char* text :
         {"", "__:__", "24:00", "12:60", "12:5", "12", "12:30:60", "12:30:", "12:30 ", "1230"})
        EXPECT_FALSE(ParseTime(text)) << text;
}

TEST(DateTime, TakesAMissingHalfAsDayZeroOrMidnight)
{
    EXPECT_EQ(ParseDateTime("01/06/2024"), (DateTime{{2024, 6, 1}, {}}));
    EXPECT_EQ(ParseDateTime("10:15"), (DateTime{{1899, 12, 30}, {10, 15, 0}}));
    EXPECT_EQ(ParseDateTime("01/06/2024 10:15:20"), (DateTime{{2024, 6, 1}, {10, 15, 20}}));
    for (const char* text : {"", " ", "01/06/2024 ", "01/06/2024 25:00", "10:15 01/06/2024"})
        EXPECT_FALSE(ParseDateTime(text)) << text;
}

TEST(DateTime, FailsWhereAProcedureNeedsOneAndThereIsNone)
{
    EXPECT_EQ(RequireDate("01/06/2024"), (Date{2024, 6, 1}));
    EXPECT_EQ(NumberOfFailure([] { RequireDate(EmptyDateMask); }), 13);
    EXPECT_EQ(NumberOfFailure([] { RequireTime(EmptyTimeMask); }), 13);
    EXPECT_EQ(NumberOfFailure([] { RequireDateTime("hoje"); }), 13);
}

TEST(DateTime, IsWrittenWithLeadingZeros)
{
    EXPECT_EQ(FormatDate({2024, 6, 1}), "01/06/2024");
    EXPECT_EQ(FormatDate({100, 12, 31}), "31/12/0100");
    EXPECT_EQ(FormatTime({8, 5, 59}), "08:05");
}

TEST(DateTime, ComparesByDateThenTime)
{
    EXPECT_LT((DateTime{{2024, 6, 1}, {23, 0, 0}}), (DateTime{{2024, 6, 2}, {1, 0, 0}}));
    EXPECT_GT((DateTime{{2024, 6, 1}, {23, 0, 1}}), (DateTime{{2024, 6, 1}, {23, 0, 0}}));
}

} // namespace kova
