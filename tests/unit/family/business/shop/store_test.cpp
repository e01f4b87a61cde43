#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/appointments/agenda.hpp"
#include "family/business/shop/store.hpp"
#include "family/data/copies/daily_backup.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"

#include <thread>

namespace kova::family::test {

class StoreComponent : public testing::Test {
protected:
    StoreComponent() : host_(folder_ / "loja.db") { }
    ~StoreComponent() override { CloseSharedDatabases(); }

    static void AwaitCopy(Store& store)
    {
        while (!store.Get("CopiaDoDiaTerminou").ToBoolean())
            std::this_thread::yield();
    }

    TemporaryFolder folder_;
    TestHost host_;
};

TEST_F(StoreComponent, TellsWhyTheDataSourceCannotBeOpened)
{
    Store store(host_);
    EXPECT_EQ(store.Get("Caminho"), Value(host_.DataSource()));
    EXPECT_EQ(store.Get("Existe"), Value(false));
    for (const char* method : {"Verificar", "Abrir"}) {
        EXPECT_EQ(store.Call(method), Value(Integer(1)));
        EXPECT_NE(store.Get("DescricaoDoErro").ToText().find("não existe"), std::string::npos);
        EXPECT_EQ(store.Get("LocalDoErro").ToText(), std::string("KOVA_N_Dados.clsBanco, ") + method);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder_.Path()));
}

TEST_F(StoreComponent, MakesTheDemonstrationShopAndOpensIt)
{
    Store store(host_);
    ASSERT_EQ(store.Call("CriarDemonstracao", {"20/11/2026"}), Value(Integer(0)));
    EXPECT_EQ(store.Get("Existe"), Value(true));
    EXPECT_EQ(store.Call("Verificar"), Value(Integer(0)));
    EXPECT_EQ(store.Get("NomeFantasia"), Value(""));
    ASSERT_EQ(store.Call("Abrir"), Value(Integer(0)));
    EXPECT_EQ(store.Get("NomeFantasia"), Value("Pet Shop Amigo Fiel"));
    Agenda agenda(host_);
    EXPECT_EQ(agenda.Call("Selecionar", DayArguments("20/11/2026")), Value(Integer(0)));
    EXPECT_GE(ResultOf(agenda)->RecordCount(), 36);
}

TEST_F(StoreComponent, NeverMakesADemonstrationOverAFile)
{
    WriteContent(host_.DataSource(), "nota");
    Store store(host_);
    EXPECT_EQ(store.Call("CriarDemonstracao", {"20/11/2026"}), Value(Integer(1)));
    EXPECT_NE(store.Get("DescricaoDoErro").ToText().find("já existe"), std::string::npos);
    EXPECT_EQ(ContentOf(host_.DataSource()), "nota");
}

TEST_F(StoreComponent, RefusesAnImpossibleDate)
{
    Store store(host_);
    EXPECT_EQ(store.Call("CriarDemonstracao", {"31/02/2026"}), Value(Integer(1)));
    EXPECT_EQ(store.Get("NumeroDoErro"), Value(Long(13)));
    EXPECT_EQ(store.Get("Existe"), Value(false));
}

TEST_F(StoreComponent, MakesTheCopyOfTheDayInTheBackground)
{
    Store store(host_);
    EXPECT_EQ(store.Get("CopiaDoDiaTerminou"), Value(true));
    store.Call("CriarDemonstracao", {"20/11/2026"});
    EXPECT_EQ(store.Call("IniciarCopiaDoDia", {"20/11/2026"}), Value(Integer(0)));
    AwaitCopy(store);
    EXPECT_EQ(store.Get("FalhaDaCopiaDoDia"), Value(""));
    EXPECT_EQ(CheckDataSource(DailyBackupName(host_.DataSource(), {2026, 11, 20})), std::nullopt);
}

TEST_F(StoreComponent, TellsWhyThereIsNoCopyOfTheDay)
{
    WriteContent(host_.DataSource(), "nota");
    Store store(host_);
    EXPECT_EQ(store.Call("IniciarCopiaDoDia", {"31/02/2026"}), Value(Integer(1)));
    EXPECT_EQ(store.Call("IniciarCopiaDoDia", {"20/11/2026"}), Value(Integer(0)));
    AwaitCopy(store);
    EXPECT_NE(store.Get("FalhaDaCopiaDoDia").ToText().find("não é um banco de dados"), std::string::npos);
}

TEST_F(StoreComponent, GivesTheCopyOfTheDayUpWhenItGoes)
{
    const std::string copy = DailyBackupName(host_.DataSource(), {2026, 11, 20});
    {
        Store store(host_);
        store.Call("CriarDemonstracao", {"20/11/2026"});
        store.Call("IniciarCopiaDoDia", {"20/11/2026"});
    }
    // It may have come to its end before.
    EXPECT_FALSE(std::filesystem::exists(UnfinishedName(copy)));
    EXPECT_TRUE(!std::filesystem::exists(copy) || !CheckDataSource(copy));
}

TEST_F(StoreComponent, ClosesTheFileWhenNobodyUsesIt)
{
    Store store(host_);
    store.Call("CriarDemonstracao", {"20/11/2026"});
    store.Call("Abrir");
    EXPECT_TRUE(std::filesystem::exists(host_.DataSource() + "-wal"));
    EXPECT_EQ(store.Call("Fechar"), Value(Integer(0)));
    EXPECT_FALSE(std::filesystem::exists(host_.DataSource() + "-wal"));
}

} // namespace kova::family::test
