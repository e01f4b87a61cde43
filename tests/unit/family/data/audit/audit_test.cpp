#include "family/data/audit/audit.hpp"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

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

TEST(AuditValues, DropWhatIsNullAndTextsOfNoLettersThatAreNeverNull)
{
    AuditValues values = AuditValues()
                             .Add("numero", 0)
                             .Add("nome", std::string())
                             .Add("cor", Nullable<std::string>())
                             .Add("porte", Nullable<std::string>(""))
                             .Add("pacote", Nullable<Key>());
    values.DropEmpty();
    EXPECT_EQ(values.Line(), R"({"numero":0,"porte":""})");
}

TEST(AuditValues, DropWhatTwoHaveAlike)
{
    const auto differences = [](AuditValues one, AuditValues other,
                                std::vector<std::string_view> together = {}) {
        AuditValues::DropAlike(one, other, together);
        return one.Line() + other.Line();
    };
    const AuditValues before = AuditValues().Add("a", 1).Add("b", std::string("x")).Add("c", 3);
    EXPECT_EQ(differences(before, AuditValues().Add("a", 1).Add("b", std::string("y")).Add("c", 3)),
              R"({"b":"x"}{"b":"y"})");
    EXPECT_EQ(differences(before, AuditValues().Add("a", 1).Add("b", Nullable<std::string>()).Add("d", 3)),
              R"({"b":"x","c":3}{"b":null,"d":3})");
    EXPECT_EQ(
        differences(before, AuditValues().Add("a", 1).Add("b", std::string("y")).Add("c", 3), {"b", "c"}),
        R"({"b":"x","c":3}{"b":"y","c":3})");
    EXPECT_EQ(
        differences(before, AuditValues().Add("a", 2).Add("b", std::string("x")).Add("c", 3), {"b", "c"}),
        R"({"a":1}{"a":2})");
    EXPECT_EQ(differences(before, before), R"({"a":1}{"a":1})");
    EXPECT_EQ(differences({}, before), R"({}{"a":1,"b":"x","c":3})");
}

} // namespace kova::family::test
