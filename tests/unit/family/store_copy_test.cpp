#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/appointment_rows.hpp"
#include "family/data/data_source.hpp"
#include "family/data/find_by_key.hpp"
#include "family/data/insert_new_row.hpp"
#include "family/data/insert_row.hpp"
#include "family/data/people_rows.hpp"
#include "family/data/row_copy.hpp"
#include "family/data/store_copy.hpp"

namespace kova::family::test {

namespace fs = std::filesystem;

class StoreCopy : public ShopTest {
protected:
    StoreCopy() : shop_(host_.DataSource()), copy_(folder_ / "copia.db") { }

    static std::vector<TableSum> SumsOf(const std::string& path) { return SumTables(*OpenDatabase(path)); }

    std::string shop_, copy_;
};

TEST_F(StoreCopy, HasEveryValueOfEveryRow)
{
    CopyStore(shop_, copy_, {});
    EXPECT_EQ(SumsOf(copy_), SumsOf(shop_));
    const auto copied = OpenDatabase(copy_);
    EXPECT_EQ(FindByKey<AppointmentRow>(*copied, 2)->observacao.value, "Laço azul.");
    EXPECT_TRUE(FindByKey<AppointmentRow>(*copied, 1)->observacao.IsNull());
    EXPECT_EQ(FindByKey<CustomerRow>(*copied, 10)->nome, "José Antônio Peçanha");
}

TEST_F(StoreCopy, HasRowsBeyondOnePageAndTellsHowFarItHasCome)
{
    {
        const auto database = OpenDatabase(shop_);
        soci::transaction transaction(database->Session());
        for (Key code = 1; code <= 2500; ++code)
            Insert(*database, UserRow{-1300 + code * 3, "Carla"});
        transaction.commit();
    }
    std::vector<long long> told;
    LongWork work;
    work.progress = [&](long long done, long long) { told.push_back(done); };
    CopyStore(shop_, copy_, work);
    EXPECT_EQ(SumsOf(copy_), SumsOf(shop_));
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(StoreCopy, NeverGivesANumberTwice)
{
    {
        const auto database = OpenDatabase(shop_);
        Insert(*database, UserRow{7, "Carla"});
        database->Session() << "delete from usuario where codigo = 7";
        database->Session() << "insert into auditoria (momento, usuario, tabela, chave, operacao)"
                               " values ('2026-11-20 09:00:00', 'Carla', 'empresa', 40, 'exclusao')";
    }
    CopyStore(shop_, copy_, {});
    const auto copied = OpenDatabase(copy_);
    EXPECT_EQ(InsertNew(*copied, UserRow{0, "Ana"}), 8);
    EXPECT_EQ(InsertNew(*copied, CompanyRow{0, "Filial", "", "", "", ""}), 41);
    EXPECT_EQ(InsertNew(*copied, PackageRow{0, 2, "2026-11-20 09:00:00", "Ana"}), 1);
}

TEST_F(StoreCopy, ReadsOneMoment)
{
    const auto desk = OpenDatabase(shop_);
    LongWork work;
    {
        soci::transaction transaction(desk->Session());
        for (Key code = 1; code <= 1000; ++code)
            Insert(*desk, UserRow{code, "Carla"});
        transaction.commit();
    }
    const std::vector<TableSum> before = SumTables(*desk);
    bool written = false;
    work.progress = [&](long long, long long) {
        if (!written)
            Insert(*desk, ServiceTypeRow{9, "Transporte", "transporte"});
        written = true;
    };
    CopyStore(shop_, copy_, work);
    EXPECT_EQ(SumsOf(copy_), before);
    EXPECT_NE(SumsOf(shop_), before);
}

TEST_F(StoreCopy, NeverReplacesAFile)
{
    WriteContent(copy_, "nota");
    EXPECT_THROW(CopyStore(shop_, copy_, {}), Failure);
    EXPECT_EQ(ContentOf(copy_), "nota");
}

TEST_F(StoreCopy, OfRowsThatReferToNothingIsNotMade)
{
    {
        Database database(SqliteDialect(), "dbname=" + shop_, shop_);
        database.Session() << "pragma foreign_keys = off";
        database.Session() << "delete from raca";
    }
    EXPECT_THROW(CopyStore(shop_, copy_, {}), Failure);
    EXPECT_FALSE(fs::exists(copy_));
    EXPECT_FALSE(fs::exists(copy_ + ".parcial"));
}

TEST_F(StoreCopy, OfAnOlderSchemaTellsHowToUpdateIt)
{
    OpenDatabase(shop_)->Session() << "delete from versao_do_esquema where versao > 2";
    try {
        CopyStore(shop_, copy_, {});
        FAIL() << "an older schema was copied";
    } catch (const Failure& failure) {
        EXPECT_NE(failure.Description().find("agenda-data migrate"), std::string::npos);
    }
    EXPECT_FALSE(fs::exists(copy_));
}

TEST_F(StoreCopy, SumsTellOneValueFromAnother)
{
    const std::vector<TableSum> before = SumsOf(shop_);
    const auto database = OpenDatabase(shop_);
    for (const char* change : {"update animal set porte = 3 where codigo = 50",
                               "update agendamento set observacao = '' where numero = 1",
                               "update agendamento set observacao = null where numero = 2",
                               "update cliente set nome = 'José Antonio Peçanha' where codigo = 10"}) {
        soci::transaction transaction(database->Session());
        database->Session() << change;
        EXPECT_NE(SumTables(*database), before) << change;
        transaction.rollback();
        EXPECT_EQ(SumTables(*database), before);
    }
}

} // namespace kova::family::test
