#include "family/data/stores/national_holidays.hpp"

#include <gtest/gtest.h>

#include <set>

namespace kova::family::test {

namespace {

struct PublishedYear {
    Date easter, carnivalTuesday, goodFriday, corpusChristi;
};

// Among them the earliest Easter (2008) and the latest (2038) of the span, leap years, and its two ends.
const PublishedYear PublishedYears[] = {
    {{2000, 4, 23}, {2000, 3, 7}, {2000, 4, 21}, {2000, 6, 22}},
    {{2008, 3, 23}, {2008, 2, 5}, {2008, 3, 21}, {2008, 5, 22}},
    {{2011, 4, 24}, {2011, 3, 8}, {2011, 4, 22}, {2011, 6, 23}},
    {{2016, 3, 27}, {2016, 2, 9}, {2016, 3, 25}, {2016, 5, 26}},
    {{2019, 4, 21}, {2019, 3, 5}, {2019, 4, 19}, {2019, 6, 20}},
    {{2024, 3, 31}, {2024, 2, 13}, {2024, 3, 29}, {2024, 5, 30}},
    {{2025, 4, 20}, {2025, 3, 4}, {2025, 4, 18}, {2025, 6, 19}},
    {{2026, 4, 5}, {2026, 2, 17}, {2026, 4, 3}, {2026, 6, 4}},
    {{2038, 4, 25}, {2038, 3, 9}, {2038, 4, 23}, {2038, 6, 24}},
    {{2100, 3, 28}, {2100, 2, 9}, {2100, 3, 26}, {2100, 5, 27}},
};

std::string Iso(Date date)
{
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
    return text;
}

} // namespace

TEST(NationalHolidays, FallOnThePublishedDates)
{
    for (const PublishedYear& year : PublishedYears) {
        EXPECT_EQ(EasterSunday(year.easter.year), year.easter) << year.easter.year;
        std::set<std::string> movable;
        for (const HolidayRow& holiday : NationalHolidays(year.easter.year, year.easter.year)) {
            if (!holiday.data.IsNull())
                movable.insert(holiday.data.value);
        }
        EXPECT_EQ(movable, std::set<std::string>{Iso(year.goodFriday)}) << year.easter.year;
    }
}

TEST(UsualDaysOff, FallOnThePublishedDates)
{
    for (const PublishedYear& year : PublishedYears) {
        std::vector<std::string> days;
        for (const HolidayRow& day : UsualDaysOff(year.easter.year))
            days.push_back(day.nome + " " + day.data.value);
        EXPECT_EQ(days,
                  (std::vector<std::string>{"Carnaval " + Iso(AddDays(year.carnivalTuesday, -1)),
                                            "Carnaval " + Iso(year.carnivalTuesday),
                                            "Corpus Christi " + Iso(year.corpusChristi)}))
            << year.easter.year;
        EXPECT_EQ(AshWednesday(year.easter.year), AddDays(year.carnivalTuesday, 1)) << year.easter.year;
        EXPECT_EQ(Weekday(AshWednesday(year.easter.year)), 4);
    }
}

TEST(NationalHolidays, LieBetweenTheirEarliestAndLatestDatesInEveryYear)
{
    for (int year = FirstHolidayYear; year <= LastHolidayYear; ++year) {
        const Date easter = EasterSunday(year);
        EXPECT_EQ(Weekday(easter), 1) << year;
        EXPECT_GE(easter, (Date{year, 3, 22})) << year;
        EXPECT_LE(easter, (Date{year, 4, 25})) << year;
    }
}

TEST(NationalHolidays, AreDaysOfEveryYearOrDatesAndNeverBoth)
{
    std::set<std::string> fixed;
    std::set<Key> codes;
    int dates = 0;
    for (const HolidayRow& holiday : NationalHolidays(FirstHolidayYear, LastHolidayYear)) {
        codes.insert(holiday.codigo);
        EXPECT_NE(holiday.data.IsNull(), holiday.dia.IsNull()) << holiday.nome;
        EXPECT_EQ(holiday.dia.IsNull(), holiday.mes.IsNull()) << holiday.nome;
        if (holiday.data.IsNull())
            fixed.insert(std::to_string(holiday.dia.value) + "/" + std::to_string(holiday.mes.value));
        else
            ++dates;
    }
    EXPECT_EQ(
        fixed,
        (std::set<std::string>{"1/1", "21/4", "1/5", "7/9", "12/10", "2/11", "15/11", "20/11", "25/12"}));
    EXPECT_EQ(dates, 101);
    EXPECT_EQ(codes.size(), 9U + 101U);
}

} // namespace kova::family::test
