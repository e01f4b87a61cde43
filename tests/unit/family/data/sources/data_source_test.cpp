#include "tests/support/network_disk.hpp"
#include "tests/support/sqlite_file.hpp"
#include "tests/support/statement_watch.hpp"
#include "tests/unit/family/data/sources/data_source_fixture.hpp"

#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/sources/data_source.hpp"
#include "system/path_text.hpp"

#include <algorithm>

namespace kova::family::test {

namespace fs = std::filesystem;

namespace {

std::string ValueOfSetting(Database& database, const std::string& name)
{
    std::string value;
    database.Session() << "pragma " + name, soci::into(value);
    return value;
}

} // namespace

TEST_F(DataSource, ThatDoesNotExistIsRefused) { ExpectRefused(folder_ / "nenhum.db", "não existe"); }

TEST_F(DataSource, InAFolderThatDoesNotExistIsRefused)
{
    ExpectRefused(folder_ / "sem/pasta.db", "não existe");
}

TEST_F(DataSource, ThatIsAFolderIsRefused)
{
    fs::create_directory(system::PathOf(folder_ / "pasta"));
    ExpectRefused(folder_ / "pasta", "é uma pasta");
}

TEST_F(DataSource, ThatIsNoDatabaseIsRefusedAndStaysAsItIs)
{
    for (const std::string& content : {std::string(), std::string("texto qualquer, longo o bastante"),
                                       std::string("SQLite format 3"), std::string(4096, '\0')}) {
        WriteContent(folder_ / "outro.db", content);
        ExpectRefused(folder_ / "outro.db", "não é um banco de dados");
        EXPECT_EQ(ContentOf(folder_ / "outro.db"), content);
    }
}

TEST_F(DataSource, WithADamagedContentIsRefused)
{
    const std::string path = MakeEmptyShop("loja.db");
    std::string content = ContentOf(path);
    std::fill(content.begin() + 100, content.end(), 'x');
    WriteContent(path, content);
    ExpectRefused(path, "danificado");
    EXPECT_EQ(ContentOf(path), content);
}

TEST_F(DataSource, OfAnotherProgramIsRefused)
{
    const std::string path = MakeEmptyShop("loja.db");
    OpenDatabase(path)->Session() << "drop table versao_do_esquema";
    const std::string content = ContentOf(path);
    ExpectRefused(path, "não é um banco de dados da agenda");
    EXPECT_EQ(ContentOf(path), content);
}

TEST_F(DataSource, OfANewerSchemaIsRefusedUntouched)
{
    const std::string path = MakeEmptyShop("loja.db");
    OpenDatabase(path)->Session() << "insert into versao_do_esquema (versao) values (1000)";
    const std::string content = ContentOf(path);
    ExpectRefused(path, "Atualize o programa");
    EXPECT_EQ(ContentOf(path), content);
}

TEST_F(DataSource, OnADiskOfTheNetworkIsRefusedAndTellsWhatToDo)
{
    const std::string path = MakeEmptyShop("loja.db");
    const kova::test::NetworkDisk share(system::TextOf(folder_.Path()));
    ExpectRefused(path, "está em uma pasta da rede");
    ExpectRefused(path, "servidor PostgreSQL");
    EXPECT_THROW(CreateDatabase(folder_ / "nova.db", [](Database&) {}), Failure);
    EXPECT_FALSE(fs::exists(system::PathOf(folder_ / "nova.db")));
    EXPECT_NO_THROW(OpenForReading(path));
}

TEST_F(DataSource, WithoutANameOrOfAnUnknownKindIsRefused)
{
    ExpectRefused("", "Nenhum banco de dados");
    ExpectRefused("oracle://servidor/loja", "tipo conhecido");
}

TEST_F(DataSource, IsCreatedOnlyWhereNothingStands)
{
    WriteContent(folder_ / "nota.txt", "minha nota");
    EXPECT_THROW(CreateDatabase(folder_ / "nota.txt", [](Database&) {}), Failure);
    EXPECT_EQ(ContentOf(folder_ / "nota.txt"), "minha nota");
}

TEST_F(DataSource, WhoseCreationFailsLeavesNoFile)
{
    EXPECT_THROW(
        CreateDatabase(folder_ / "loja.db", [](Database&) { throw Failure(FailureNumber::Overflow); }),
        Failure);
    EXPECT_TRUE(Listing().empty());
}

TEST_F(DataSource, OpensUnderAnyNameThatAFileCanHave)
{
    for (const char* name : {"com espaço  duplo.db", "a=b timeout=1.db", "ação;'1'.db", "sem-fim"}) {
        const std::string path = MakeEmptyShop(name);
        EXPECT_EQ(CheckDataSource(path), std::nullopt) << path;
        EXPECT_NO_THROW(OpenDatabase(path)) << path;
    }
    ExpectRefused(folder_ / "com\"aspas.db", "aspas");
}

TEST_F(DataSource, IsOpenedToKeepWhatItIsGiven)
{
    const auto database = OpenDatabase(MakeEmptyShop("loja.db"));
    EXPECT_EQ(ValueOfSetting(*database, "journal_mode"), "wal");
    EXPECT_EQ(ValueOfSetting(*database, "synchronous"), "2");
    EXPECT_EQ(ValueOfSetting(*database, "foreign_keys"), "1");
    EXPECT_EQ(ValueOfSetting(*database, "busy_timeout"), "5000");
}

TEST_F(DataSource, WaitsForTheProgramThatOpensItForTheFirstTime)
{
    const std::string path = MakeEmptyShop("loja.db");
    kova::test::SqliteFile other(path);
    other.Run("begin immediate");
    const kova::test::StatementWatch watch("pragma journal_mode = wal", [&](int time) {
        if (time == 2)
            other.Run("commit");
    });
    EXPECT_NO_THROW(OpenDatabase(path));
}

TEST_F(DataSource, ThatIsFullSaysSoAndLosesNothing)
{
    const auto database = OpenDatabase(MakeEmptyShop("loja.db"));
    Insert(*database, UserRow{1, "Carla"});
    int pages = 0;
    database->Session() << "pragma page_count", soci::into(pages);
    database->Session() << "pragma max_page_count = " + std::to_string(pages);
    try {
        Insert(*database, UserRow{2, std::string(100000, 'x')});
        FAIL() << "the row had no room";
    } catch (const Failure& failure) {
        EXPECT_NE(failure.Description().find("O disco está cheio"), std::string::npos);
        EXPECT_NE(failure.Description().find(database->Path()), std::string::npos);
    }
    int users = 0;
    database->Session() << "select count(*) from usuario", soci::into(users);
    EXPECT_EQ(users, 1);
}

} // namespace kova::family::test
