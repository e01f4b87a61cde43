#include "family/data/audit/audit.hpp"

#include <gtest/gtest.h>

namespace kova::family::test {

TEST(AuditValues, WriteNumbersTextsAndNull)
{
    EXPECT_EQ(AuditValues().Line(), "{}");
    EXPECT_EQ(AuditValues()
                  .Add("numero", -5)
                  .Add("nome", std::string("José"))
                  .Add("em", Nullable<std::string>())
                  .Add("por", Nullable<std::string>("Lia"))
                  .Line(),
              R"({"numero":-5,"nome":"José","em":null,"por":"Lia"})");
}

TEST(AuditValues, EscapeWhatWouldEndATextOrTheLine)
{
    EXPECT_EQ(AuditValues().Add("nome", std::string("a\"b\\c\r\nd\x01")).Line(),
              R"({"nome":"a\"b\\c\r\nd\u0001"})");
}

TEST(AuditValues, KeepTheOrderOfTheColumns)
{
    EXPECT_EQ(AuditValues().Add("z", 1).Add("a", 2).Add("m", 3).Line(), R"({"z":1,"a":2,"m":3})");
}

TEST(AuditValues, WriteEveryCharacterAsItIs)
{
    EXPECT_EQ(AuditValues().Add("nome", std::string("São João / <b> \u2019 \U0001F436 \x7F")).Line(),
              "{\"nome\":\"São João / <b> \u2019 \U0001F436 \x7F\"}");
}

TEST(AuditValues, ReplaceBytesThatAreNoCharacters)
{
    EXPECT_EQ(AuditValues().Add("nome", std::string("Jos\xE9 e \xC3")).Add("numero", 1).Line(),
              "{\"nome\":\"Jos\uFFFD e \uFFFD\",\"numero\":1}");
}

} // namespace kova::family::test
