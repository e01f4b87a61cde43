#include "family/business/appointments/repetition.hpp"

#include "family/business/appointments/appointment_input.hpp"

#include <gtest/gtest.h>

namespace kova::family::test {

namespace {

TimeSpan Span(const Text& start, const Text& end) { return {RequireDateTime(start), RequireDateTime(end)}; }

std::vector<Text> Days(const Text& first, Long repetitions, Integer frequency)
{
    std::vector<Text> days;
    for (const TimeSpan& span : Repeated(Span(first + " 09:00", first + " 10:00"), repetitions, frequency))
        days.push_back(FormatDate(span.start.date));
    return days;
}

using Texts = std::vector<Text>;
using Input = AppointmentInput;

} // namespace

TEST(Repetition, ComesEverySevenAndEveryFourteenDays)
{
    EXPECT_EQ(Days("21/12/2026", 3, Input::Weekly),
              (Texts{"21/12/2026", "28/12/2026", "04/01/2027", "11/01/2027"}));
    EXPECT_EQ(Days("15/02/2028", 2, Input::Fortnightly), (Texts{"15/02/2028", "29/02/2028", "14/03/2028"}));
}

TEST(Repetition, ComesOnTheSameDayOfEachMonth)
{
    EXPECT_EQ(Days("15/11/2026", 3, Input::Monthly),
              (Texts{"15/11/2026", "15/12/2026", "15/01/2027", "15/02/2027"}));
}

TEST(Repetition, ComesOnTheLastDayOfAMonthThatHasNoSuchDay)
{
    EXPECT_EQ(Days("31/01/2027", 4, Input::Monthly),
              (Texts{"31/01/2027", "28/02/2027", "31/03/2027", "30/04/2027", "31/05/2027"}));
    EXPECT_EQ(Days("30/01/2028", 2, Input::Monthly), (Texts{"30/01/2028", "29/02/2028", "30/03/2028"}));
    EXPECT_EQ(Days("29/02/2028", 12, Input::Monthly).back(), "28/02/2029");
    EXPECT_EQ(Days("29/02/2028", 48, Input::Monthly).back(), "29/02/2032");
    EXPECT_EQ(Days("31/01/2100", 1, Input::Monthly).back(), "28/02/2100");
}

TEST(Repetition, KeepsHoursAndLength)
{
    const auto spans = Repeated(Span("31/01/2027 22:30", "02/02/2027 01:15"), 1, Input::Monthly);
    ASSERT_EQ(spans.size(), 2U);
    EXPECT_EQ(spans[1].start, RequireDateTime("28/02/2027 22:30"));
    EXPECT_EQ(spans[1].end, RequireDateTime("02/03/2027 01:15"));
}

TEST(Repetition, IsThereOnlyWithANumberAndAFrequency)
{
    EXPECT_EQ(Days("01/12/2026", 0, Input::Weekly).size(), 1U);
    EXPECT_EQ(Days("01/12/2026", -5, Input::Weekly).size(), 1U);
    EXPECT_EQ(Days("01/12/2026", 5, -1).size(), 1U);
    EXPECT_EQ(Days("01/12/2026", 5, 3).size(), 1U);
    EXPECT_EQ(Days("01/12/2026", 999, Input::Weekly).size(), 1000U);
    EXPECT_THROW(Days("01/12/2026", 1000, Input::Weekly), Failure);
}

} // namespace kova::family::test
