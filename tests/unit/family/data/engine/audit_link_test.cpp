#include "family/data/engine/audit_link.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace kova::family::test {

namespace {

ChainedLine Line()
{
    ChainedLine line;
    line.codigo = 1;
    line.momento = "2026-11-20 09:04:05";
    line.usuario = "7 - José";
    line.posto = "BALCÃO";
    line.tabela = "cliente";
    line.chave = 10;
    line.operacao = "inclusao";
    line.depois = std::string("{\"nome\":\"Zé\"}");
    return line;
}

constexpr const char* Salt = "0123456789abcdef";

} // namespace

/// The sum of "0:16:0123456789abcdef1:119:2026-11-20 09:04:058:..." as other programs make it.
TEST(AuditLink, IsTheSumOfAllPartsWithTheirLengths)
{
    EXPECT_EQ(LinkOf("", Salt, Line()), "sijuOd5T3AruaPqdtErIYB");
}

TEST(AuditLink, IsKnownByAllOfItsLettersAlsoWhereFormerProgramsHaveKeptMore)
{
    const std::string whole = "sijuOd5T3AruaPqdtErIYBIH/+W9iGvcep/6CGcnexo";
    EXPECT_TRUE(IsLinkOf(whole, "", Salt, Line()));
    EXPECT_TRUE(IsLinkOf(whole.substr(0, 22), "", Salt, Line()));
    EXPECT_FALSE(IsLinkOf(whole, "a", Salt, Line()));
    for (const char* other :
         {"", "s", "sijuOd5T3AruaPqdtErIY", "sijuOd5T3AruaPqdtErIYC",
          "sijuOd5T3AruaPqdtErIYBIH/+W9iGvcep/6CGcnexx", "sijuOd5T3AruaPqdtErIYBIH/+W9iGvcep/6CGcnexoA"})
        EXPECT_FALSE(IsLinkOf(other, "", Salt, Line())) << other;
}

TEST(AuditLink, IsAnotherOneAfterAnyChange)
{
    std::set<std::string> links = {LinkOf("", Salt, Line()), LinkOf("a", Salt, Line()),
                                   LinkOf("", "0123456789abcdee", Line())};
    const std::function<void(ChainedLine&)> changes[] = {
        [](ChainedLine& line) { line.codigo = 2; },
        [](ChainedLine& line) { line.momento = "2026-11-20 09:04:06"; },
        [](ChainedLine& line) { line.usuario = "8 - José"; },
        [](ChainedLine& line) { line.posto = ""; },
        [](ChainedLine& line) { line.tabela = "animal"; },
        [](ChainedLine& line) { line.chave = 11; },
        [](ChainedLine& line) { line.operacao = "alteracao"; },
        [](ChainedLine& line) { line.antes = std::string(); },
        [](ChainedLine& line) { line.depois = {}; },
        [](ChainedLine& line) { line.depois = std::string(); },
        [](ChainedLine& line) { std::swap(line.antes, line.depois); },
        [](ChainedLine& line) {
            line.usuario = "7 - JoséB";
            line.posto = "ALCÃO";
        },
    };
    for (const auto& change : changes) {
        ChainedLine line = Line();
        change(line);
        links.insert(LinkOf("", Salt, line));
    }
    EXPECT_EQ(links.size(), 3 + std::size(changes));
}

TEST(AuditLink, HasASaltOfItsOwn)
{
    const std::string salt = NewSalt();
    EXPECT_EQ(salt.size(), 16U);
    EXPECT_EQ(salt.find_first_not_of("0123456789abcdef"), std::string::npos);
    EXPECT_NE(salt, NewSalt());
}

} // namespace kova::family::test
