#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audit_lines.hpp"
#include "family/data/sources/data_source.hpp"

namespace kova::family::test {

/// A shop's file, which takes texts that a server refuses.
class AuditLines : public testing::Test {
protected:
    AuditLines()
    {
        MakeShop(path_);
        database_ = OpenDatabase(path_);
    }

    void Write(const std::string& user, const std::string& before)
    {
        database_->Session()
            << "insert into auditoria (momento, usuario, posto, tabela, chave, operacao, antes)"
               " values ('2026-11-20 09:04:05', :usuario, '', 'agendamento', 5, 'exclusao',"
               " :antes)",
            soci::use(user), soci::use(before);
    }

    TemporaryFolder folder_;
    const std::string path_ = folder_ / "loja.db";
    std::shared_ptr<Database> database_;
};

TEST_F(AuditLines, TellOfBytesThatAreNoCharacters)
{
    Write("7 - Jos\xE9", "{\"incluido_por\":\"Jos\xE9\",\"numero\":5}");
    const auto lines = FindAuditLines(*database_, "agendamento", 5, 10);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].user, "7 - Jos\uFFFD");
    EXPECT_EQ(lines[0].before.at("incluido_por"), "Jos\uFFFD");
    EXPECT_EQ(lines[0].before.at("numero"), "5");
}

TEST_F(AuditLines, AreWrittenWithoutSuchBytes)
{
    AuditRemoval(*database_,
                 {"\xFF"
                  "7",
                  "Jos\xE9", "2026-11-20 09:04:05", "BALC\xC3O"},
                 "agendamento", 5, AuditValues().Add("nome", std::string("Jos\xE9")));
    std::string written;
    database_->Session() << "select usuario || '|' || posto || '|' || antes from auditoria",
        soci::into(written);
    EXPECT_EQ(written, "\uFFFD7 - Jos\uFFFD|BALC\uFFFDO|{\"nome\":\"Jos\uFFFD\"}");
}

TEST_F(AuditLines, OfFormerProgramsTellTheColumnsThatDifferAlone)
{
    database_->Session()
        << "insert into auditoria (momento, usuario, posto, tabela, chave, operacao, antes, depois)"
           " values ('2026-11-20 09:04:05', '7 - Lia', '', 'agendamento', 5, 'alteracao',"
           " '{\"numero\":5,\"cor\":null,\"situacao\":1}', '{\"numero\":5,\"cor\":null,\"situacao\":2}')";
    const auto lines = FindAuditLines(*database_, "agendamento", 5, 1);
    EXPECT_EQ(lines.at(0).before, (AuditedColumns{{"situacao", "1"}}));
    EXPECT_EQ(lines.at(0).after, (AuditedColumns{{"situacao", "2"}}));
}

TEST_F(AuditLines, SayOnceWhoWroteAndWhen)
{
    const Author lia{"7", "Lia", "2026-11-20 09:04:05"};
    AuditInsertion(*database_, lia, "pacote", 1,
                   AuditValues().Add("incluido_em", lia.moment).Add("incluido_por", lia.name).Add("a", 1));
    AuditInsertion(*database_, lia, "pacote", 2,
                   AuditValues().Add("incluido_em", std::string("2025-01-02 00:00:00")).Add("a", 1));
    AuditChange(*database_, lia, "pacote", 1,
                AuditValues().Add("alterado_em", Nullable<std::string>()).Add("a", 1),
                AuditValues().Add("alterado_em", Nullable<std::string>(lia.moment)).Add("a", 2));
    std::string kept;
    database_->Session() << "select group_concat(coalesce(antes, '') || depois, ' ') from auditoria",
        soci::into(kept);
    EXPECT_EQ(kept, R"({"a":1} {"incluido_em":"2025-01-02 00:00:00","a":1} {"a":1}{"a":2})");
}

} // namespace kova::family::test
