// A server links the lines of the audit by itself, in the order in which their transactions are kept.

#include "tests/unit/family/server_fixture.hpp"

#include "family/data/audit/audit_chain.hpp"
#include "family/data/checks/audit_check.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/sources/data_source.hpp"

#include <thread>

namespace kova::family::test {

class PostgresqlChain : public PostgresqlShop {
protected:
    static void Write(Database& database, Key key)
    {
        AuditRemoval(database, Somebody, "servico", key,
                     AuditValues().Add("nome", std::string("Lã \"à mão\" \\ 🐶 ação\r\n")));
    }

    /// The keys that the lines tell of, in the order of the chain.
    std::vector<std::string> Chained() const
    {
        return shop_.Run("select a.chave from public.elo_da_auditoria e join auditoria a on a.codigo ="
                         " e.codigo_da_linha order by e.ordem");
    }
    std::vector<std::string> Broken() const { return FindBrokenChain(*OpenForReading(shop_.Address())); }

    std::shared_ptr<Database> first_ = OpenDatabase(shop_.Address()), second_ = OpenDatabase(shop_.Address());
};

TEST_F(PostgresqlChain, HasTheLinksThatAFileWouldHave)
{
    AuditRow row;
    row.momento = "2026-11-20 09:04:05";
    row.usuario = "7 - José \"Zé\" 🐶";
    row.tabela = "cliente";
    row.chave = -3;
    row.operacao = "alteracao";
    row.antes = std::string("\r\n\t\\ 'x' 12:ab");
    AddLine(*first_, row);
    row.antes = std::string();
    row.depois = std::string("-");
    AddLine(*first_, row);
    std::string former;
    for (Key code = 1; code <= 2; ++code) {
        const auto link = FindByKey<LinkRow>(*first_, code);
        const auto line = FindByKey<AuditRow>(*first_, code);
        ASSERT_TRUE(link && line);
        EXPECT_EQ(link->sal.size(), NewSalt().size());
        EXPECT_EQ(LinkOf(former, link->sal, *line), link->elo);
        former = link->elo;
    }
}

TEST_F(PostgresqlChain, HasTheOrderInWhichTransactionsAreKept)
{
    first_->Session() << "begin";
    Write(*first_, 1);
    Write(*second_, 2);
    Write(*first_, 3);
    Write(*second_, 4);
    first_->Session() << "commit";
    EXPECT_EQ(Chained(), (std::vector<std::string>{"2", "4", "1", "3"}));
    EXPECT_EQ(Broken(), std::vector<std::string>{});
}

TEST_F(PostgresqlChain, IsOneWhereTwoDesksAreKeptAtTheSameTime)
{
    const auto holder = OpenDatabase(shop_.Address());
    holder->Session() << "begin";
    holder->Session() << "select pg_advisory_xact_lock(20081115)";
    std::vector<std::jthread> desks;
    for (Database* desk : {first_.get(), second_.get()})
        desks.emplace_back([desk] { Write(*desk, 5); });
    while (WaitingForALock() < 2)
        std::this_thread::yield();
    holder->Session() << "commit";
    desks.clear();
    EXPECT_EQ(Chained(), (std::vector<std::string>{"5", "5"}));
    EXPECT_EQ(Broken(), std::vector<std::string>{});
}

TEST_F(PostgresqlChain, KeepsNothingOfADeskThatCannotWaitForIt)
{
    first_->Session() << "begin";
    first_->Session() << "select pg_advisory_xact_lock(20081115)";
    second_->Session() << "set lock_timeout = '30ms'";
    const std::string told = FailureOf([&] {
        WriteSafely(*second_, [&] {
            Write(*second_, 1);
            return true;
        });
    });
    EXPECT_NE(told.find("Nada foi gravado."), std::string::npos) << told;
    EXPECT_EQ(shop_.Run("select count(*) from auditoria").front(), "0");
    first_->Session() << "commit";
    Write(*second_, 2);
    EXPECT_EQ(Broken(), std::vector<std::string>{});
}

/// Such a transaction would not see the link of the one that it has waited for.
TEST_F(PostgresqlChain, IsNotGoneOnWithInATransactionThatSeesThePast)
{
    first_->Session() << "begin isolation level repeatable read";
    Write(*first_, 1);
    EXPECT_THROW(first_->Session() << "commit", soci::soci_error);
    EXPECT_EQ(shop_.Run("select count(*) from auditoria").front(), "0");
}

TEST_F(PostgresqlChain, GoesOnInItsOwnTableWhateverTheNamesOfTheWriterStandFor)
{
    first_->Session() << "create temporary table elo_da_auditoria (ordem bigint, codigo_da_linha bigint,"
                         " sal text, elo text)";
    Write(*first_, 1);
    shop_.Run("create schema alheio; create table alheio.elo_da_auditoria (like public.elo_da_auditoria);"
              " set search_path = alheio; insert into public.auditoria (momento, usuario, tabela, chave,"
              " operacao) values ('', '', '', 2, '')");
    EXPECT_EQ(Chained(), (std::vector<std::string>{"1", "2"}));
    shop_.Run("drop schema alheio cascade");
    EXPECT_EQ(Broken(), std::vector<std::string>{});
}

} // namespace kova::family::test
