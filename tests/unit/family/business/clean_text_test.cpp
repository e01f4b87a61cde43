#include "family/business/clean_text.hpp"

#include <gtest/gtest.h>

namespace kova::family::test {

TEST(CleanText, LosesLineBreaksAndBlanksAtItsEnds)
{
    const std::pair<Text, Text> cases[] = {
        {"", ""},
        {"   ", ""},
        {"\r\n\t ", ""},
        {" Bidu ", "Bidu"},
        {"Rua A\r\nRua B\nRua C\rRua D", "Rua A Rua B Rua C Rua D"},
        {"a\tb", "a b"},
        {"a  b", "a  b"},
        {Text("a\0b", 3), "a b"},
        {"\u00A0Zé\u2003", "Zé"},
        {"João\u00A0Sá", "João Sá"},
        {"a\u2028b\u2029c\u0085d", "a b c d"},
        {"a\x1F"
         "b\x7F"
         "c\u0080d\u009Fe\u00A0f",
         "a b c d e f"},
        {"a\u2000b\u200Ac\u202Fd\u3000e", "a b c d e"},
        {"a\u1FFFb\u200Bc", "a\u1FFFb\u200Bc"},
        {"a\n\r\nb\n\nc", "a  b  c"},
        {"\nA", "A"},
    };
    for (const auto& [typed, kept] : cases)
        EXPECT_EQ(CleanText(typed, 50), kept);
}

TEST(CleanText, KeepsEveryLetterAsItIs)
{
    for (const Text text : {"D'Ávila \"Zé\"'); drop table cliente; --", "🐶👩‍🦰", "שלום עולם",
                            "e\u0301", "\u202Eabc\u202C", "100% _ ! \\"})
        EXPECT_EQ(CleanText(text, 50), text);
}

TEST(CleanText, CountsCharactersAndCutsBetweenThem)
{
    EXPECT_EQ(CleanText("ÁÉÍÓÚ", 3), "ÁÉÍ");
    EXPECT_EQ(CleanText("🐶🐱🐭", 2), "🐶🐱");
    EXPECT_EQ(CleanText("  abc", 3), "abc");
    EXPECT_EQ(CleanText("ab cd", 3), "ab");
    EXPECT_EQ(CleanText("abc", 3), "abc");
}

TEST(CleanText, ShowsABrokenCharacterAsOneThatCannotBeRead)
{
    EXPECT_EQ(CleanText("a\xC3", 5), "a\uFFFD");
    EXPECT_EQ(CleanText("\xFF\xFE", 5), "\uFFFD\uFFFD");
}

} // namespace kova::family::test
