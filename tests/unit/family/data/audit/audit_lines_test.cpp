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

} // namespace kova::family::test
