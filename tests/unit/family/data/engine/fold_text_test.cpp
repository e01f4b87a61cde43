#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/search_text.hpp"

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

TEST(FoldText, TakesEveryApostropheDashAndBlankForThePlainOne)
{
    for (const char* name : {"D'Ávila", "D’Ávila", "D‘Ávila", "D´Ávila", "D`Ávila", "DʼÁvila"})
        EXPECT_EQ(FoldText(name), "d'avila") << name;
    EXPECT_EQ(FoldText("São\u2011João \u2013 X\u00A0Y\u3000Z"), "sao-joao - x y z");
}

TEST(FoldText, TakesOrdinalsLigaturesAndFullWidthForTheirLetters)
{
    EXPECT_EQ(FoldText("1º 2ª nº № ²"), "1o 2a no no 2");
    EXPECT_EQ(FoldText("ﬁ ½"), "fi 1/2");
    EXPECT_EQ(FoldText("ＪＯＳＥ　１２３％"), "jose 123%");
}

TEST(FoldText, TakesLettersWithAStrokeForTheirBase)
{
    EXPECT_EQ(FoldText("Øø Łł Đđ Ħħ Ŧŧ ı İ ŋ ĸ Ǿ"), "oo ll dd hh tt i i n k o");
}

TEST(FoldText, LeavesOutWhatHasNoWidth) { EXPECT_EQ(FoldText("a\u00ADb\u200Bc"), "abc"); }

TEST(FoldText, ChangesNothingThatIsFolded)
{
    for (const char* text :
         {"D´Ávila", "1º Łódź №½", "ＪＯＳＥ　１２３％", "Straße İ", "日本 × €", "\xC3\x28"})
        EXPECT_EQ(FoldText(FoldText(text)), FoldText(text));
}

TEST(FoldText, LeavesEverythingElse)
{
    EXPECT_EQ(FoldText("日本 × 10 €"), "日本 × 10 €");
    EXPECT_EQ(FoldText("\xC3"), "\xC3");
    EXPECT_EQ(FoldText("Jos\xE9 \xC3\xA9"), "jos\xE9 e");
    EXPECT_EQ(FoldText("A\r\n\tB"), "a\r\n\tb");
    EXPECT_EQ(FoldText("\u0080"), "\u0080");
    EXPECT_EQ(FoldText(""), "");
}

TEST(DigitsOf, ReadsNumbersWithTheirPunctuation)
{
    EXPECT_EQ(DigitsOf("123.456.789-09"), "12345678909");
    EXPECT_EQ(DigitsOf("11.222.333/0001-81"), "11222333000181");
    EXPECT_EQ(DigitsOf("12a"), "");
    EXPECT_EQ(DigitsOf("-./ "), "");
}

TEST(DocumentOf, ReadsTheNumberOfACompanyThatHasLetters)
{
    EXPECT_EQ(DocumentOf("12.ABC.345/01DE-35"), "12ABC34501DE35");
    EXPECT_EQ(DocumentOf("12abc34501de35"), "12ABC34501DE35");
    EXPECT_EQ(DocumentOf("12zbC34501dZ50"), "12ZBC34501DZ50");
    EXPECT_EQ(DocumentOf("123.456.789-09"), "12345678909");
    EXPECT_EQ(DocumentOf("1-2"), "12") << "digits of any number may be a microchip";
    for (const char* text : {"", "12ABC34501DE3", "12ABC34501DE356", "12ABC34501DE3F", "12ABC34501DEF5",
                             "12ABC34501DÉ35", "12ABC34501D+35", "canil"})
        EXPECT_EQ(DocumentOf(text), "") << text;
}

TEST(ContainsPattern, TakesEveryCharacterAsItStands)
{
    EXPECT_EQ(ContainsPattern("a"), "%a%");
    EXPECT_EQ(ContainsPattern("50%_!"), "%50!%!_!!%");
}

TEST(SearchText, ReadsAPastedNumberByItsPlainDigits)
{
    const SearchText document("\u00A0１２３.456.789\u201009\u00A0");
    EXPECT_EQ(document.folded, "123.456.789-09");
    EXPECT_EQ(document.number.value, "12345678909");
    EXPECT_TRUE(document.code.IsNull());
    EXPECT_EQ(SearchText(" １２ ").code.value, 12);
    for (const char* none : {"", "12a", "12.3", "12ABC34501DE35", "99999999999999999999"})
        EXPECT_TRUE(SearchText(none).code.IsNull()) << none;
    EXPECT_EQ(SearchText("12.3").number.value, "123");
    EXPECT_TRUE(SearchText("12a").number.IsNull());
    EXPECT_TRUE(SearchText("\u00A0 \u200B").IsEmpty());
}

} // namespace kova::family::test
