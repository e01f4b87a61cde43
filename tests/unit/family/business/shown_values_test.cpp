#include "family/business/shown_values.hpp"

#include <gtest/gtest.h>

namespace kova::family::test {

TEST(ShownMoney, HasTwoDecimalsAndAPointBeforeEachThreeDigits)
{
    const std::pair<long long, const char*> amounts[] = {
        {0, "0,00"},
        {5, "0,05"},
        {50, "0,50"},
        {100, "1,00"},
        {999, "9,99"},
        {1000, "10,00"},
        {99'999, "999,99"},
        {100'000, "1.000,00"},
        {99'999'999, "999.999,99"},
        {123'456'789, "1.234.567,89"},
        {-1, "-0,01"},
        {-100'000, "-1.000,00"},
    };
    for (const auto& [cents, shown] : amounts)
        EXPECT_EQ(ShownMoney(cents), shown);
}

TEST(ShownWeekdays, AreTheirShortNames)
{
    EXPECT_EQ(ShownWeekdays("1"), "dom");
    EXPECT_EQ(ShownWeekdays("247"), "seg, qua, sáb");
    EXPECT_EQ(ShownWeekdays("1234567"), "todos");
    EXPECT_EQ(ShownWeekdays("09x"), "");
}

TEST(ShownSex, IsAWordForItsLetterAndEverythingElseAsItIs)
{
    EXPECT_EQ(ShownSex("M"), "Macho");
    EXPECT_EQ(ShownSex("F"), "Fêmea");
    EXPECT_EQ(ShownSex("Macho castrado"), "Macho castrado");
    EXPECT_EQ(ShownSex(""), "");
}

} // namespace kova::family::test
