#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/appointments/agenda.hpp"
#include "family/business/shop/database_component.hpp"
#include "family/data/copies/daily_backup.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/migrations/current_migrations.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_migration.hpp"
#include "family/data/sources/shared_database.hpp"
#include "system/path_text.hpp"

#include <thread>

namespace kova::family::test {

class TheDatabaseComponent : public testing::Test {
protected:
    TheDatabaseComponent() : host_(folder_ / "loja.db") { }
    ~TheDatabaseComponent() override { CloseSharedDatabases(); }

    static void AwaitCopy(DatabaseComponent& component)
    {
        while (!component.Get("CopiaDoDiaTerminou").ToBoolean())
            std::this_thread::yield();
    }

    TemporaryFolder folder_;
    TestHost host_;
};

TEST_F(TheDatabaseComponent, TellsWhyTheDataSourceCannotBeOpened)
{
    DatabaseComponent component(host_);
    EXPECT_EQ(component.Get("Caminho"), Value(host_.DataSource()));
    EXPECT_EQ(component.Get("Existe"), Value(false));
    for (const char* method : {"Verificar", "Abrir"}) {
        EXPECT_EQ(component.Call(method), Value(Integer(1)));
        EXPECT_NE(component.Get("DescricaoDoErro").ToText().find("não existe"), std::string::npos);
        EXPECT_EQ(component.Get("LocalDoErro").ToText(), std::string("KOVA_N_Dados.clsBanco, ") + method);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder_.Path()));
}

TEST_F(TheDatabaseComponent, MakesTheDemonstrationShopAndOpensIt)
{
    DatabaseComponent component(host_);
    ASSERT_EQ(component.Call("CriarDemonstracao", {"20/11/2026"}), Value(Integer(0)));
    EXPECT_EQ(component.Get("Existe"), Value(true));
    EXPECT_EQ(component.Call("Verificar"), Value(Integer(0)));
    EXPECT_EQ(component.Get("NomeFantasia"), Value(""));
    ASSERT_EQ(component.Call("Abrir"), Value(Integer(0)));
    EXPECT_EQ(component.Get("NomeFantasia"), Value("Pet Shop Amigo Fiel"));
    EXPECT_EQ(component.Get("Demonstracao"), Value(true));
    EXPECT_EQ(component.Get("TemUsuarios"), Value(false));
    Agenda agenda(host_);
    EXPECT_EQ(agenda.Call("Selecionar", DayArguments("20/11/2026")), Value(Integer(0)));
    EXPECT_GE(ResultOf(agenda)->RecordCount(), 36);
}

TEST_F(TheDatabaseComponent, TellsOnceWhatBringingAnOlderFileUpToDateHasDone)
{
    {
        Database older(SqliteDialect(), "dbname=" + host_.DataSource(), host_.DataSource());
        Migrate(older.Session(), SqliteDialect(), CurrentMigrations().first(4));
    }
    DatabaseComponent component(host_);
    EXPECT_EQ(component.Get("Atualizacao"), Value(""));
    ASSERT_EQ(component.Call("Abrir"), Value(Integer(0)));
    const int newest = NewestVersion(CurrentMigrations());
    const std::string told = component.Get("Atualizacao").ToText();
    EXPECT_NE(told.find("da versão 4 para a versão " + std::to_string(newest)), std::string::npos) << told;
    const std::string copy = BackupName(host_.DataSource(), newest);
    EXPECT_NE(told.find("\"" + copy + "\""), std::string::npos) << told;
    EXPECT_EQ(StoredVersion(OpenForReading(copy)->Session()), 4);

    EXPECT_EQ(component.Call("Abrir"), Value(Integer(0)));
    EXPECT_EQ(component.Get("Atualizacao"), Value(""));
    component.Call("Fechar");
    EXPECT_EQ(component.Call("Abrir"), Value(Integer(0)));
    EXPECT_EQ(component.Get("Atualizacao"), Value(""));
}

TEST_F(TheDatabaseComponent, NeverMakesADemonstrationOverAFile)
{
    WriteContent(host_.DataSource(), "nota");
    DatabaseComponent component(host_);
    EXPECT_EQ(component.Call("CriarDemonstracao", {"20/11/2026"}), Value(Integer(1)));
    EXPECT_NE(component.Get("DescricaoDoErro").ToText().find("já existe"), std::string::npos);
    EXPECT_EQ(ContentOf(host_.DataSource()), "nota");
}

TEST_F(TheDatabaseComponent, RefusesAnImpossibleDate)
{
    DatabaseComponent component(host_);
    EXPECT_EQ(component.Call("CriarDemonstracao", {"31/02/2026"}), Value(Integer(1)));
    EXPECT_EQ(component.Get("NumeroDoErro"), Value(Long(13)));
    EXPECT_EQ(component.Get("Existe"), Value(false));
}

TEST_F(TheDatabaseComponent, MakesTheCopyOfTheDayInTheBackground)
{
    DatabaseComponent component(host_);
    EXPECT_EQ(component.Get("CopiaDoDiaTerminou"), Value(true));
    component.Call("CriarDemonstracao", {"20/11/2026"});
    EXPECT_EQ(component.Call("IniciarCopiaDoDia", {"20/11/2026"}), Value(Integer(0)));
    AwaitCopy(component);
    EXPECT_EQ(component.Get("FalhaDaCopiaDoDia"), Value(""));
    EXPECT_EQ(CheckDataSource(DailyBackupName(host_.DataSource(), {2026, 11, 20})), std::nullopt);
}

TEST_F(TheDatabaseComponent, TellsWhyThereIsNoCopyOfTheDay)
{
    WriteContent(host_.DataSource(), "nota");
    DatabaseComponent component(host_);
    EXPECT_EQ(component.Call("IniciarCopiaDoDia", {"31/02/2026"}), Value(Integer(1)));
    EXPECT_EQ(component.Call("IniciarCopiaDoDia", {"20/11/2026"}), Value(Integer(0)));
    AwaitCopy(component);
    EXPECT_NE(component.Get("FalhaDaCopiaDoDia").ToText().find("não é um banco de dados"), std::string::npos);
}

TEST_F(TheDatabaseComponent, GivesTheCopyOfTheDayUpWhenItGoes)
{
    const std::string copy = DailyBackupName(host_.DataSource(), {2026, 11, 20});
    {
        DatabaseComponent component(host_);
        component.Call("CriarDemonstracao", {"20/11/2026"});
        component.Call("IniciarCopiaDoDia", {"20/11/2026"});
    }
    // It may have come to its end before.
    EXPECT_FALSE(std::filesystem::exists(system::PathOf(UnfinishedName(copy))));
    EXPECT_TRUE(!std::filesystem::exists(system::PathOf(copy)) || !CheckDataSource(copy));
}

TEST_F(TheDatabaseComponent, ClosesTheFileWhenNobodyUsesIt)
{
    DatabaseComponent component(host_);
    component.Call("CriarDemonstracao", {"20/11/2026"});
    component.Call("Abrir");
    EXPECT_TRUE(std::filesystem::exists(system::PathOf(host_.DataSource() + "-wal")));
    EXPECT_EQ(component.Call("Fechar"), Value(Integer(0)));
    EXPECT_FALSE(std::filesystem::exists(system::PathOf(host_.DataSource() + "-wal")));
}

} // namespace kova::family::test
