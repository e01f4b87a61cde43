#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/audit/audit_chain.hpp"
#include "family/data/checks/audit_check.hpp"
#include "family/data/sources/data_source.hpp"

namespace kova::family::test {

namespace {

const Author Lia{"7", "Lia", "2026-11-20 09:04:05", "BALCAO-1"};

/// What is done to the audit behind the agenda's back, and how it is told.
struct Tampering {
    std::vector<const char*> statements;
    std::vector<std::string> told;
};

const Tampering Tamperings[] = {
    {{"update auditoria set depois = '{\"nome\":\"Bia\"}' where codigo = 3"},
     {"auditoria 3: a linha foi alterada depois de gravada."}},
    {{"update auditoria set usuario = '8 - Ana' where codigo in (5, 4)"},
     {"auditoria 4: a linha foi alterada depois de gravada.", "auditoria: mais 1 linha não confere."}},
    {{"update elo_da_auditoria set elo = upper(elo) where codigo_da_linha = 6"},
     {"auditoria 6: a linha foi alterada depois de gravada."}},
    {{"update elo_da_auditoria set sal = '0' where codigo_da_linha = 2"},
     {"auditoria 2: a linha foi alterada depois de gravada."}},
    {{"delete from auditoria where codigo = 3"}, {"auditoria 3: a linha foi retirada."}},
    {{"delete from auditoria where codigo = 3", "delete from elo_da_auditoria where codigo_da_linha = 3"},
     {"auditoria 4: uma linha que estava antes dela foi retirada."}},
    {{"delete from auditoria where codigo < 4", "delete from elo_da_auditoria where codigo_da_linha < 4"},
     {"auditoria 4: 3 linhas que estavam antes dela foram retiradas."}},
    {{"delete from auditoria where codigo = 3", "delete from elo_da_auditoria where codigo_da_linha = 3",
      "update elo_da_auditoria set ordem = ordem - 1000 where codigo_da_linha > 3",
      "update elo_da_auditoria set ordem = ordem + 999 where codigo_da_linha > 3"},
     {"auditoria 4: a linha foi alterada depois de gravada."}},
    {{"update elo_da_auditoria set ordem = -3 where codigo_da_linha = 3",
      "update elo_da_auditoria set ordem = 3 where codigo_da_linha = 4",
      "update elo_da_auditoria set ordem = 4 where codigo_da_linha = 3"},
     {"auditoria 4: a linha está fora da ordem: foi gravada logo depois da linha 3.",
      "auditoria: mais 2 linhas não conferem."}},
    {{"insert into auditoria (codigo, momento, usuario, posto, tabela, chave, operacao)"
      " values (90, '2026-11-20 09:04:05', '7 - Lia', 'BALCAO-1', 'cliente', 10, 'exclusao')"},
     {"auditoria 90: a linha não foi gravada pela agenda."}},
    {{"delete from elo_da_auditoria where codigo_da_linha = 6"},
     {"auditoria 6: a linha não foi gravada pela agenda."}},
    {{"delete from elo_da_auditoria"},
     {"auditoria 1: a linha não foi gravada pela agenda.", "auditoria: mais 5 linhas não conferem."}},
};

} // namespace

/// A shop with six lines in its audit, 1 to 6.
class AuditCheck : public ShopTest {
protected:
    AuditCheck()
    {
        for (Key key = 1; key <= 3; ++key)
            AuditInsertion(*database_, Lia, "servico", key,
                           AuditValues().Add("nome", std::string("Lã à mão")));
        AuditChange(*database_, Lia, "servico", 2, AuditValues().Add("nome", std::string("Lã")),
                    AuditValues().Add("preco", Nullable<int>()));
        AuditRemoval(*database_, Lia, "servico", 3, AuditValues().Add("nome", std::string()));
        AuditRestoration(*database_, Lia, "servico", 3, AuditValues().Add("nome", std::string("Lã")));
    }

    std::vector<std::string> Found() { return FindBrokenChain(*OpenForReading(host_.DataSource())); }
    /// Writes past the agenda, and past what a server links by itself.
    void Tamper(const std::vector<const char*>& statements)
    {
        for (const char* statement : statements)
            RunUnchecked(host_.DataSource(), statement);
    }
    /// What is told where something is wrong ends so.
    static std::vector<std::string> WithAdvice(std::vector<std::string> told)
    {
        told.emplace_back("A auditoria não está como a agenda a gravou. Compare-a com a de uma cópia de "
                          "segurança de antes.");
        return told;
    }

    std::shared_ptr<Database> database_ = OpenDatabase(host_.DataSource());
};

TEST_F(AuditCheck, FindsNothingInWhatTheAgendaHasWritten)
{
    EXPECT_EQ(Found(), std::vector<std::string>{});
    int lines = 0;
    database_->Session() << "select count(*) from elo_da_auditoria", soci::into(lines);
    EXPECT_EQ(lines, 6);
}

class TamperedAudit : public AuditCheck, public testing::WithParamInterface<Tampering> { };

TEST_P(TamperedAudit, IsToldByItsFirstLine)
{
    Tamper(GetParam().statements);
    EXPECT_EQ(Found(), WithAdvice(GetParam().told));
}

INSTANTIATE_TEST_SUITE_P(All, TamperedAudit, testing::ValuesIn(Tamperings));

TEST_F(AuditCheck, SeesAChangeOfAnyColumn)
{
    for (const char* change :
         {"momento = '2026-11-20 09:04:06'", "usuario = ''", "posto = 'BALCAO-2'", "tabela = 'animal'",
          "chave = 9", "operacao = 'exclusao'", "antes = ''", "depois = null"}) {
        const auto one = OpenDatabase(host_.DataSource());
        UncheckReferences(one->Session());
        soci::transaction transaction(one->Session());
        one->Session() << std::string("update auditoria set ") + change + " where codigo = 2";
        EXPECT_EQ(FindBrokenChain(*one), WithAdvice({"auditoria 2: a linha foi alterada depois de gravada."}))
            << change;
        transaction.rollback();
    }
}

/// A server links what is changed by hand as well; only an anonymisation that names it makes that right.
TEST_F(AuditCheck, SeesAChangeBehindWhichTheLineWasLinkedAnew)
{
    {
        soci::transaction transaction(database_->Session());
        database_->Session() << "update auditoria set posto = 'BALCAO-9' where codigo = 2";
        LinkAnew(*database_, 2);
        transaction.commit();
    }
    EXPECT_EQ(Found(), WithAdvice({"auditoria 2: a linha foi alterada depois de gravada."}));
    AuditAnonymisation(*database_, Lia, "cliente", 10,
                       AuditValues().Add(CleanedLinesColumn, std::string("1,3-9")));
    EXPECT_EQ(Found(), WithAdvice({"auditoria 2: a linha foi alterada depois de gravada."}));
    AuditAnonymisation(*database_, Lia, "cliente", 10,
                       AuditValues().Add(CleanedLinesColumn, std::string("1-2")));
    EXPECT_EQ(Found(), std::vector<std::string>{});
    Tamper({"update auditoria set posto = 'BALCAO-8' where codigo = 2"});
    EXPECT_EQ(Found(), WithAdvice({"auditoria 2: a linha foi alterada depois de gravada."}));
}

TEST_F(AuditCheck, BelievesNoAnonymisationThatWasChangedItself)
{
    {
        soci::transaction transaction(database_->Session());
        database_->Session() << "update auditoria set posto = 'BALCAO-9' where codigo = 2";
        LinkAnew(*database_, 2);
        AuditAnonymisation(*database_, Lia, "cliente", 10,
                           AuditValues().Add(CleanedLinesColumn, std::string("5")));
        transaction.commit();
    }
    Tamper({"update auditoria set depois = replace(depois, '5', '2') where operacao = 'anonimizacao'"});
    EXPECT_EQ(Found(),
              WithAdvice({"auditoria 2: a linha foi alterada depois de gravada.",
                          "auditoria: mais 1 linha não confere."}));
}

TEST_F(AuditCheck, GoesThroughManyLinesInPages)
{
    {
        soci::transaction transaction(database_->Session());
        for (Key key = 1; key <= 2500; ++key)
            AuditRemoval(*database_, Lia, "servico", key, AuditValues().Add("nome", std::string("Banho")));
        transaction.commit();
    }
    std::vector<long long> reached;
    LongWork work;
    work.progress = [&](long long done, long long) { reached.push_back(done); };
    EXPECT_EQ(FindBrokenChain(*database_, work), std::vector<std::string>{});
    EXPECT_EQ(reached, (std::vector<long long>{1000, 2000, 2506}));
    Tamper({"update auditoria set antes = '{}' where chave = 2400"});
    EXPECT_EQ(Found().size(), 2U);
}

TEST_F(AuditCheck, HasNothingToLookAtInAnOlderSchema)
{
    Tamper({"delete from auditoria where codigo = 3", "delete from versao_do_esquema where versao > 8"});
    EXPECT_EQ(Found(), std::vector<std::string>{});
}

} // namespace kova::family::test
