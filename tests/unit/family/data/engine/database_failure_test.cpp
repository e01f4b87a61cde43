#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/database_failure.hpp"

#include <gtest/gtest.h>

namespace kova::family {

namespace {

/// What the user reads of it, without the first line, which names the database.
std::string CauseOf(const DatabaseFailure& failure)
{
    const std::string text = WithoutDetail(failure.Description());
    return text.substr(text.find("\r\n") + 2);
}

} // namespace

TEST(DatabaseFailure, KeepsTheWordsOfTheEngineApartFromThoseForTheUser)
{
    for (const char* reported : {"database or disk is full", "database is locked", "disk I/O error",
                                 "attempt to write a readonly database", "no such table: x"}) {
        const DatabaseFailure failure = TranslatedFailure("loja.db", std::runtime_error(reported));
        EXPECT_EQ(failure.Description(), WithDetail(WithoutDetail(failure.Description()), reported));
        EXPECT_EQ(CauseOf(failure).find(reported), std::string::npos) << failure.Description();
        EXPECT_TRUE(CauseOf(failure).ends_with('.')) << failure.Description();
    }
}

TEST(DatabaseFailure, KeepsTheWordsOfAServerApartToo)
{
    for (const char* state : {"53100", "08006", "28P01", "XX000"}) {
        const DatabaseFailure failure =
            ServerFailure("postgresql://maria@servidor/loja", state, "ERROR:  no space\nDETAIL:  none\n");
        EXPECT_EQ(CauseOf(failure).find("ERROR"), std::string::npos) << failure.Description();
        EXPECT_TRUE(failure.Description().ends_with("\r\nDetalhe técnico: ERROR:  no space DETAIL:  none"));
        EXPECT_TRUE(CauseOf(failure).ends_with('.')) << failure.Description();
    }
}

} // namespace kova::family
