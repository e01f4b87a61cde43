#include "family/data/engine/fold_text.hpp"

#include <gtest/gtest.h>

namespace kova::family::test {

TEST(FoldText, DropsCaseAndAccents)
{
    EXPECT_EQ(FoldText("José ANTÔNIO Peçanha"), "jose antonio pecanha");
    EXPECT_EQ(FoldText("ÁÀÂÃÄÉÊÍÓÔÕÖÚÜÇÑ áàâãäéêíóôõöúüçñ"), "aaaaaeeioooouucn aaaaaeeioooouucn");
    EXPECT_EQ(FoldText("Ždár Łódź Ğ ŷ"), "zdar lodz g y");
    EXPECT_EQ(FoldText("Straße"), "strasse");
}

TEST(FoldText, DropsAccentsThatStandApart) { EXPECT_EQ(FoldText("Jose\xCC\x81"), "jose"); }

TEST(FoldText, LeavesEverythingElse)
{
    EXPECT_EQ(FoldText("日本 × 10 €"), "日本 × 10 €");
    EXPECT_EQ(FoldText("\xC3"), "\xC3");
    EXPECT_EQ(FoldText(""), "");
}

TEST(DigitsOf, ReadsNumbersWithTheirPunctuation)
{
    EXPECT_EQ(DigitsOf("123.456.789-09"), "12345678909");
    EXPECT_EQ(DigitsOf("11.222.333/0001-81"), "11222333000181");
    EXPECT_EQ(DigitsOf("12a"), "");
    EXPECT_EQ(DigitsOf("-./ "), "");
}

TEST(ContainsPattern, TakesEveryCharacterAsItStands)
{
    EXPECT_EQ(ContainsPattern("a"), "%a%");
    EXPECT_EQ(ContainsPattern("50%_!"), "%50!%!_!!%");
}

} // namespace kova::family::test
