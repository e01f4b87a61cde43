#include "agenda/contracts/text.hpp"
#include "agenda/contracts/utf8.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"

#include <gtest/gtest.h>

namespace kova {

using test::NumberOfFailure;

TEST(Text, CountsCharactersAndNotBytes)
{
    EXPECT_EQ(Length(""), 0U);
    EXPECT_EQ(Length("Zé"), 2U);
    EXPECT_EQ(Length("Agendamento nº 1"), 16U);
    EXPECT_EQ(Length("€🐶"), 2U);
}

TEST(Text, CountsEachMalformedByteAsOneCharacter)
{
    EXPECT_EQ(Length("a\xFFz"), 3U);
    EXPECT_EQ(Length("\xC3"), 1U);
    EXPECT_EQ(Length("\xE2\x82"), 2U);
    EXPECT_EQ(Length("\xC0\xAF"), 2U);
    EXPECT_EQ(Length("\xED\xA0\x80"), 3U);
}

TEST(Text, IsWellFormedWithAReplacementForEachMalformedByte)
{
    EXPECT_EQ(utf8::WellFormed("Açaí € 🐶\r\n"), "Açaí € 🐶\r\n");
    EXPECT_EQ(utf8::WellFormed("Jos\xE9"), "Jos\uFFFD");
    EXPECT_EQ(utf8::WellFormed("\xC3 \xE2\x82"), "\uFFFD \uFFFD\uFFFD");
    EXPECT_EQ(utf8::WellFormed(std::string_view("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(utf8::WellFormed(""), "");
}

TEST(Text, CutsBetweenCharacters)
{
    EXPECT_EQ(Left("Cão pequeno", 3), "Cão");
    EXPECT_EQ(Left("Cão", 9), "Cão");
    EXPECT_EQ(Left("Cão", 0), "");
    EXPECT_EQ(Right("José", 2), "sé");
    EXPECT_EQ(Right("José", 9), "José");
    EXPECT_EQ(Right("José", 0), "");
    EXPECT_EQ(Left("a\xFFz", 2), "a\xFF");
}

TEST(Text, TrimsBlanksAndNothingElse)
{
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(Trim("   "), "");
}

TEST(Text, ChangesTheCaseOfPortugueseLetters)
{
    EXPECT_EQ(UpperCase("ação à moda do pinguim, vovô é ímpar"), "AÇÃO À MODA DO PINGUIM, VOVÔ É ÍMPAR");
    EXPECT_EQ(LowerCase("AÇÃO À MODA DO PINGÜIM"), "ação à moda do pingüim");
}

TEST(Text, ChangesTheCaseOfTheOtherLatinLetters)
{
    const std::pair<const char*, const char*> pairs[] = {{"ø", "Ø"}, {"þ", "Þ"}, {"ā", "Ā"}, {"ķ", "Ķ"},
                                                         {"ĺ", "Ĺ"}, {"ň", "Ň"}, {"ŋ", "Ŋ"}, {"ŷ", "Ŷ"},
                                                         {"ź", "Ź"}, {"ž", "Ž"}, {"ÿ", "Ÿ"}};
    for (const auto& [small, capital] : pairs) {
        EXPECT_EQ(UpperCase(small), capital);
        EXPECT_EQ(LowerCase(capital), small);
        EXPECT_EQ(UpperCase(capital), capital);
        EXPECT_EQ(LowerCase(small), small);
    }
}

TEST(Text, LeavesWhatHasNoCase)
{
    for (const char* text : {"×÷", "ß", "ĸ", "ŉ", "1-2", "日", "a\xFF"})
        EXPECT_EQ(LowerCase(text), text);
    EXPECT_EQ(UpperCase("×÷ßĸŉ\xFF"), "×÷ßĸŉ\xFF");
}

TEST(Text, ReplacesEveryOccurrence)
{
    EXPECT_EQ(Replace("a;b;c", ";", ", "), "a, b, c");
    EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
    EXPECT_EQ(Replace("abc", "abc", ""), "");
}

TEST(Val, ReadsTheLeadingNumber)
{
    const std::pair<const char*, Double> readings[] = {
        {"", 0},        {"abc", 0},     {"12", 12},    {"12abc", 12},    {"  12", 12}, {"1 234", 1234},
        {"-5", -5},     {"+5", 5},      {"- 5", -5},   {"1.5", 1.5},     {"1,5", 1},   {".5", 0.5},
        {"5.", 5},      {"1e3x", 1000}, {"1e", 1},     {"1.5E-1", 0.15}, {"-", 0},     {".", 0},
        {"1.2.3", 1.2}, {"e5", 0},      {"1e-999", 0}, {"0.0", 0},       {"R$ 5", 0},  {"12/05", 12},
    };
    for (const auto& [text, number] : readings)
        EXPECT_DOUBLE_EQ(Val(text), number) << text;
}

TEST(Val, OverflowsOnANumberThatIsTooLarge)
{
    EXPECT_EQ(NumberOfFailure([] { Val("1e999"); }), 6);
    EXPECT_EQ(NumberOfFailure([] { Val(Text(400, '9')); }), 6);
}

TEST(IsNumeric, TakesWholeNumbersOnly)
{
    for (const char* text : {"1", " 1 ", "-1", "+1,5", "1.5", ",5", "5,", "1e5"})
        EXPECT_TRUE(IsNumeric(text)) << text;
    for (const char* text : {"", " ", "a", "1a", "1 2", "1,2,3", "-", ",", "1e", "__:__"})
        EXPECT_FALSE(IsNumeric(text)) << text;
}

TEST(TextOfNumber, IsTheShortestThatReadsBack)
{
    const std::pair<Double, const char*> texts[] = {
        {0, "0"},
        {-0.0, "0"},
        {5, "5"},
        {-12, "-12"},
        {0.1, "0,1"},
        {2.50, "2,5"},
        {1234567.25, "1234567,25"},
        {1e14, "100000000000000"},
        {0.000001, "0,000001"},
        {1e15, "1E+15"},
        {-1.5e20, "-1,5E+20"},
        {0.1 + 0.2, "0,30000000000000004"},
    };
    for (const auto& [number, text] : texts)
        EXPECT_EQ(TextOf(number), text);
    EXPECT_EQ(TextOf(1.5, '.'), "1.5");
    EXPECT_EQ(Val(TextOf(5e-324, '.')), 5e-324);
}

TEST(Rounding, TakesHalvesToTheEvenNeighbour)
{
    const std::pair<Double, Long> roundings[] = {{0.5, 0},   {1.5, 2}, {2.5, 2}, {-0.5, 0},
                                                 {-1.5, -2}, {2.4, 2}, {2.6, 3}, {-2.6, -3}};
    for (const auto& [number, whole] : roundings) {
        EXPECT_EQ(RoundToInteger(number), whole);
        EXPECT_EQ(RoundToLong(number), whole);
    }
}

TEST(Rounding, OverflowsOutsideTheRange)
{
    EXPECT_EQ(RoundToInteger(-32768.5), -32768);
    EXPECT_EQ(NumberOfFailure([] { RoundToInteger(32767.5); }), 6);
    EXPECT_EQ(NumberOfFailure([] { RoundToLong(3e9); }), 6);
    EXPECT_EQ(Checked(32767), 32767);
    EXPECT_EQ(NumberOfFailure([] { Checked(32768); }), 6);
    EXPECT_EQ(NumberOfFailure([] { Checked(-32769); }), 6);
}

} // namespace kova
