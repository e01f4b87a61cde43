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
              R"({"nome":"a\"b\\c\u000d\u000ad\u0001"})");
}

} // namespace kova::family::test
