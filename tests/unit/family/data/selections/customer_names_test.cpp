#include "tests/unit/family/server_fixture.hpp"

#include "agenda/contracts/text.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/selections/customer_selection.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/customer_store.hpp"
#include "family/demo/shop.hpp"

#include <algorithm>
#include <set>

namespace kova::family::test {

namespace {

class NamesInMemory : public testing::Test {
protected:
    NamesInMemory()
    {
        CreateDatabase(folder_ / "loja.db", [](Database&) {});
        database_ = OpenDatabase(folder_ / "loja.db");
        Add(1, "Márcia Ribeiro");
    }

    void Add(Key code, const char* name)
    {
        CustomerRow row;
        row.codigo = code;
        row.tipoDePessoa = "PF";
        row.nome = name;
        WriteCustomer(*database_, row, {});
    }

    std::size_t Found(const std::string& name)
    {
        return SelectCustomers(*database_, {name, "", 0, ""}).size();
    }
    std::size_t FoundByAddress(const std::string& address)
    {
        return SelectCustomers(*database_, {"", "", 0, address}).size();
    }

    TemporaryFolder folder_;
    std::shared_ptr<Database> database_;
};

} // namespace

TEST_F(NamesInMemory, KnowANewCustomer)
{
    EXPECT_EQ(Found("márcia"), 1U);
    Add(2, "Ana Márcia");
    EXPECT_EQ(Found("márcia"), 2U);
}

TEST_F(NamesInMemory, FollowAChangeOfName)
{
    database_->Session() << "update cliente set nomes_de_busca = 'tereza' where codigo = 1";
    EXPECT_EQ(Found("marcia"), 0U);
    EXPECT_EQ(Found("tereza"), 1U);
}

TEST_F(NamesInMemory, ForgetARemovedCustomer)
{
    database_->Session() << "delete from cliente where codigo = 1";
    EXPECT_EQ(Found("marcia"), 0U);
    Add(1, "Tereza");
    EXPECT_EQ(Found("tereza"), 1U);
    EXPECT_EQ(Found("marcia"), 0U);
}

TEST_F(NamesInMemory, TakeBackWhatATransactionTakesBack)
{
    {
        WriteTransaction transaction(*database_);
        Add(2, "Ana Márcia");
        EXPECT_EQ(Found("marcia"), 2U);
    }
    EXPECT_EQ(Found("marcia"), 1U);
}

TEST_F(NamesInMemory, SeeWhatAnotherConnectionWrites)
{
    EXPECT_EQ(Found("bento"), 0U);
    const auto other = OpenDatabase(folder_ / "loja.db");
    CustomerRow row;
    row.codigo = 7;
    row.tipoDePessoa = "PF";
    row.nome = "Bento";
    WriteCustomer(*other, row, {});
    EXPECT_EQ(Found("bento"), 1U);
}

TEST_F(NamesInMemory, AreSearchedForAnyText)
{
    for (const char* text :
         {"\"", "\"\"\"", "'''", "a\"b\"c", "((()", "-- x", "\xff\xfe\xfd", "***", "^ab", "a AND"})
        EXPECT_NO_THROW(Found(text)) << text;
}

/// Every part of 1 to 9 characters of some names finds in a shop exactly the customers whose folded names
/// hold it, in the order of name and code.
TEST(NamesInMemoryOfAShop, AreThoseOfEveryRow)
{
    const TemporaryFolder folder;
    CreateShop(folder / "loja.db", MeasuringPlan({2026, 11, 20}, 700, 1));
    const auto database = OpenDatabase(folder / "loja.db");
    struct Known {
        std::string name, names;
        Key code;
    };
    std::vector<Known> all;
    KeptRows<FoundCustomerOf> kept;
    for (const Key code : SelectCustomers(*database, {}))
        FetchCustomers(*database, std::span(&code, 1), kept);
    for (const auto& row : kept.rows)
        all.push_back({FoldText(row.nome), FoldText(row.apelido) + "\n" + FoldText(row.nome), row.codigo});
    ASSERT_EQ(all.size(), 700U);
    EXPECT_TRUE(std::is_sorted(all.begin(), all.end(), [](const Known& a, const Known& b) {
        return std::tie(a.name, a.code) < std::tie(b.name, b.code);
    }));
    std::set<std::string> parts;
    for (std::size_t person = 0; person < all.size(); person += 70)
        for (std::size_t length = 1; length < 10; ++length)
            for (std::size_t at = 0; at + length <= all[person].name.size(); at += 4)
                parts.insert(all[person].name.substr(at, length));
    for (const std::string& part : parts) {
        if (Trim(part) != part)
            continue;
        std::vector<Key> expected;
        for (const Known& known : all)
            if (known.names.find(part) != std::string::npos)
                expected.push_back(known.code);
        EXPECT_EQ(SelectCustomers(*database, {part, "", 0, ""}), expected) << part;
    }
}

TEST_F(NamesInMemory, AreReadAgainWhenAnyWriteOfACustomerChangesThem)
{
    EXPECT_EQ(Found("marcia"), 1U);
    for (const char* statement :
         {"update cliente set nomes_de_busca = 'bento' where codigo = 1",
          "update cliente set nomes_de_busca = 'marcia' where codigo = 1",
          "update cliente set situacao = 2 where codigo = 1", "delete from cliente where codigo = 1"}) {
        database_->Session() << statement;
        int expected = 0;
        database_->Session() << "select count(*) from cliente where nomes_de_busca like '%marcia%'",
            soci::into(expected);
        EXPECT_EQ(Found("marcia"), static_cast<std::size_t>(expected)) << statement;
    }
}

TEST_F(NamesInMemory, OfNobodyHoldNothing)
{
    database_->Session() << "delete from cliente";
    EXPECT_EQ(Found(""), 0U);
    EXPECT_EQ(Found("a"), 0U);
    EXPECT_EQ(Found("1"), 0U);
}

TEST_F(NamesInMemory, AreReadAgainAfterAFailure)
{
    EXPECT_EQ(Found("marcia"), 1U);
    database_->Session() << "alter table contador_de_alteracoes rename to escondido";
    EXPECT_THROW(Found("marcia"), Failure);
    database_->Session() << "alter table escondido rename to contador_de_alteracoes";
    EXPECT_EQ(Found("marcia"), 1U);
}

TEST_F(NamesInMemory, StandBesideAddressesThatFollowTheirChangesToo)
{
    EXPECT_EQ(FoundByAddress("rua do ipe"), 0U);
    database_->Session() << "update cliente set endereco_de_busca = 'rua do ipe, 7' where codigo = 1";
    EXPECT_EQ(FoundByAddress("Rua do Ipê"), 1U);
    EXPECT_EQ(Found("ipe"), 0U);
    database_->Session() << "update cliente set endereco_de_busca = '' where codigo = 1";
    EXPECT_EQ(FoundByAddress("Rua do Ipê"), 0U);
}

class ChangesCountedPostgresql : public PostgresqlShop {
protected:
    int Counted() const
    {
        return std::stoi(
            shop_.Run("select alteracoes from contador_de_alteracoes where tabela = 'cliente'").front());
    }
};

TEST_F(ChangesCountedPostgresql, OfAddressesAnimalsAndHolidaysToo)
{
    const auto counted = [this] {
        return shop_
            .Run("select string_agg(tabela || ' ' || alteracoes, ', ' order by tabela)"
                 " from contador_de_alteracoes where tabela in ('animal', 'cliente', 'feriado')")
            .front();
    };
    shop_.Run("update contador_de_alteracoes set alteracoes = 0");
    shop_.Run("update cliente set endereco_de_busca = 'x' where codigo = 10");
    EXPECT_EQ(counted(), "animal 0, cliente 1, feriado 0");
    shop_.Run("update animal set situacao = 2 where codigo = 50");
    shop_.Run("update animal set nome_de_busca = 'x' where codigo = 50");
    EXPECT_EQ(counted(), "animal 2, cliente 1, feriado 0");
    shop_.Run("insert into feriado (nome, dia, mes) values ('Feira', 3, 12)");
    shop_.Run("update feriado set dia = 4");
    shop_.Run("delete from feriado");
    EXPECT_EQ(counted(), "animal 2, cliente 1, feriado 3");
    shop_.Run("update animal set cor = 'Preto' where codigo = 50");
    shop_.Run("update cliente set vip = 1 where codigo = 10");
    EXPECT_EQ(counted(), "animal 2, cliente 1, feriado 3") << "nothing that is kept in memory";
}

TEST_F(ChangesCountedPostgresql, OnceInEachTransaction)
{
    const int before = Counted();
    const std::string change = "update cliente set nome_de_busca = nome_de_busca || '+' where codigo = ";
    shop_.Run("begin; " + change + "10; " + change + "11; commit");
    EXPECT_EQ(Counted(), before + 1);
    shop_.Run(change + "10");
    shop_.Run(change + "11");
    EXPECT_EQ(Counted(), before + 3);
    shop_.Run("begin; " + change + "10; rollback");
    EXPECT_EQ(Counted(), before + 3);
}

} // namespace kova::family::test
