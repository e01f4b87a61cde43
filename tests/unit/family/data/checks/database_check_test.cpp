#include "family/data/checks/database_check.hpp"

#include "tests/unit/family/server_fixture.hpp"

namespace kova::family::test {

namespace {

using Problems = std::vector<std::string>;

} // namespace

class DatabaseCheck : public ShopTest { };

TEST_F(DatabaseCheck, FindsNothingInASoundShop)
{
    const DatabaseReport report = CheckDatabase(host_.DataSource());
    EXPECT_EQ(report.problems, Problems());
    EXPECT_EQ(report.tables.size(), StoredTables().size());
}

TEST_F(DatabaseCheck, NamesEachColumnThatLeadsNowhere)
{
    RunUnchecked(host_.DataSource(), "delete from cliente where codigo = 11");
    EXPECT_EQ(CheckDatabase(host_.DataSource()).problems,
              (Problems{"animal: 1 referências sem registro em codigo_do_cliente.",
                        "agendamento: 6 referências sem registro em codigo_do_cliente."}));
}

class DatabaseCheckPostgresql : public PostgresqlShop { };

TEST_F(DatabaseCheckPostgresql, TellsOfReferencesThatTheServerDoesNotHoldTo)
{
    const Problems told = {"O servidor confere só 21 das 22 referências entre as tabelas. Restaure uma cópia "
                           "em um banco vazio."};
    EXPECT_EQ(CheckDatabase(shop_.Address()).problems, Problems());
    shop_.Run("alter table animal drop constraint animal_codigo_da_raca_fkey");
    EXPECT_EQ(CheckDatabase(shop_.Address()).problems, told);
    shop_.Run("alter table animal add foreign key (codigo_da_raca) references raca (codigo) not valid");
    EXPECT_EQ(CheckDatabase(shop_.Address()).problems, told);
    shop_.Run("alter table animal validate constraint animal_codigo_da_raca_fkey");
    EXPECT_EQ(CheckDatabase(shop_.Address()).problems, Problems());
}

} // namespace kova::family::test
