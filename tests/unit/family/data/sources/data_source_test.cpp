#include "tests/support/network_disk.hpp"
#include "tests/support/ordinary_rights.hpp"
#include "tests/support/sqlite_file.hpp"
#include "tests/support/statement_watch.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/sources/data_source.hpp"
#include "tools/agenda-data/commands.hpp"

#include <algorithm>
#include <sstream>

namespace kova::family::test {

namespace fs = std::filesystem;

using kova::test::OrdinaryRights;

class DataSource : public testing::Test {
protected:
    /// The refusal names the path, holds the words, and leaves the folder's listing as it was.
    void ExpectRefused(const std::string& path, const std::string& words)
    {
        const auto before = Listing();
        const auto refusal = CheckDataSource(path);
        ASSERT_TRUE(refusal.has_value());
        EXPECT_NE(refusal->find(path), std::string::npos) << *refusal;
        EXPECT_NE(refusal->find(words), std::string::npos) << *refusal;
        EXPECT_THROW(OpenDatabase(path), Failure);
        EXPECT_EQ(Listing(), before);
    }

    std::vector<std::string> Listing()
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(folder_.Path()))
            names.push_back(entry.path().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string MakeEmptyShop(const std::string& name)
    {
        CreateDatabase(folder_ / name, [](Database&) {});
        return folder_ / name;
    }

    TemporaryFolder folder_;
};

namespace {

constexpr fs::perms ReadableByAll = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
constexpr fs::perms ExecutableByAll = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;

constexpr fs::perms OwnersAlone = fs::perms::owner_read | fs::perms::owner_write;

fs::perms RightsTo(const std::string& path) { return fs::status(path).permissions(); }

/// As long as it lives, files are opened as on a disk that shares no memory between programs.
class WithoutSharedMemory {
public:
    WithoutSharedMemory() { sqlite3_vfs_register(sqlite3_vfs_find("unix-dotfile"), 1); }
    ~WithoutSharedMemory() { sqlite3_vfs_register(former_, 1); }
    WithoutSharedMemory(const WithoutSharedMemory&) = delete;
    WithoutSharedMemory& operator=(const WithoutSharedMemory&) = delete;

private:
    sqlite3_vfs* former_ = sqlite3_vfs_find(nullptr);
};

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
    fs::create_directory(folder_ / "pasta");
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

TEST_F(DataSource, InAFolderThatCannotBeWrittenIsRefused)
{
    const std::string path = MakeEmptyShop("loja.db");
    fs::permissions(path, fs::perms::all);
    fs::permissions(folder_.Path(), ReadableByAll | ExecutableByAll);
    const OrdinaryRights ordinary;
    ExpectRefused(path, "não aceita gravação");
    EXPECT_THROW(CreateDatabase(folder_ / "nova.db", [](Database&) {}), Failure);
}

TEST_F(DataSource, ThatCannotBeWrittenItselfIsRefused)
{
    const std::string path = MakeEmptyShop("loja.db");
    fs::permissions(path, ReadableByAll);
    fs::permissions(folder_.Path(), fs::perms::all);
    const OrdinaryRights ordinary;
    ExpectRefused(path, "permissões do arquivo");
}

TEST_F(DataSource, OnADiskOfTheNetworkIsRefusedAndTellsWhatToDo)
{
    const std::string path = MakeEmptyShop("loja.db");
    const kova::test::NetworkDisk share(folder_.Path());
    ExpectRefused(path, "está em uma pasta da rede");
    ExpectRefused(path, "servidor PostgreSQL");
    EXPECT_THROW(CreateDatabase(folder_ / "nova.db", [](Database&) {}), Failure);
    EXPECT_FALSE(fs::exists(folder_ / "nova.db"));
    EXPECT_NO_THROW(OpenForReading(path));
}

TEST_F(DataSource, WhoseDiskTakesNoSharedLogIsRefused)
{
    const std::string path = MakeEmptyShop("loja.db");
    const WithoutSharedMemory disk;
    try {
        OpenDatabase(path);
        FAIL() << "nobody could write beside another";
    } catch (const Failure& failure) {
        EXPECT_NE(failure.Description().find(path), std::string::npos) << failure.Description();
        EXPECT_NE(failure.Description().find("não deixa vários programas gravar"), std::string::npos)
            << failure.Description();
    }
}

TEST_F(DataSource, IsMadeForItsOwnerAlone)
{
    const std::string path = MakeEmptyShop("loja.db");
    EXPECT_EQ(RightsTo(path), OwnersAlone);
    const auto database = OpenDatabase(path);
    Insert(*database, UserRow{1, "Carla"});
    EXPECT_EQ(RightsTo(path + "-wal"), OwnersAlone);
    EXPECT_EQ(RightsTo(path + "-shm"), OwnersAlone);
}

TEST_F(DataSource, ThatEverybodyCouldReadIsKeptFromOthersWhenItIsOpened)
{
    const std::string path = MakeEmptyShop("loja.db");
    fs::permissions(path, ReadableByAll | fs::perms::owner_write);
    const auto database = OpenDatabase(path);
    EXPECT_EQ(RightsTo(path), OwnersAlone);
    EXPECT_EQ(RightsTo(path + "-wal"), OwnersAlone);
}

TEST_F(DataSource, ThatNobodyMayWriteIsReadAndLeftAsItIs)
{
    const std::string path = MakeEmptyShop("com espaço %20 e ação#1?.db");
    Insert(*OpenDatabase(path), UserRow{1, "Carla"});
    fs::permissions(path, ReadableByAll);
    fs::permissions(folder_.Path(), ReadableByAll | ExecutableByAll);
    const auto before = Listing();
    const OrdinaryRights ordinary;
    std::string name;
    OpenNewestForReading(path)->Session() << "select nome from usuario", soci::into(name);
    EXPECT_EQ(name, "Carla");
    EXPECT_EQ(Listing(), before);
}

TEST_F(DataSource, ThatNobodyMayWriteIsCheckedExportedCopiedAndItsHistoryTold)
{
    const std::string path = MakeEmptyShop("loja.db");
    AuditInsertion(*OpenDatabase(path), {"1", "Ana", "2026-11-20 09:00:00"}, "agendamento", 5, AuditValues());
    fs::permissions(path, ReadableByAll);
    fs::permissions(folder_.Path(), ReadableByAll | ExecutableByAll);
    const TemporaryFolder other;
    fs::permissions(other.Path(), fs::perms::all);
    const auto before = Listing();
    {
        const OrdinaryRights ordinary;
        for (const std::vector<std::string>& words :
             std::vector<std::vector<std::string>>{{"check", path},
                                                   {"history", path, "5"},
                                                   {"export", path, "clientes", other / "clientes.csv"},
                                                   {"backup", path, other / "loja.bak"}}) {
            std::ostringstream output, error;
            EXPECT_EQ(data::Run(words, {{2026, 11, 20}, {9, 0, 0}}, output, error), 0)
                << words[0] << error.str();
        }
    }
    EXPECT_EQ(Listing(), before);
}

TEST_F(DataSource, ThatNobodyMayWriteIsReadWithWhatADeskHasJustWritten)
{
    const std::string path = MakeEmptyShop("loja.db");
    const auto desk = OpenDatabase(path);
    Insert(*desk, UserRow{1, "Carla"});
    for (const char* companion : {"", "-wal", "-shm"})
        fs::permissions(path + companion, ReadableByAll);
    fs::permissions(folder_.Path(), ReadableByAll | ExecutableByAll);
    const OrdinaryRights ordinary;
    std::string name;
    OpenForReading(path)->Session() << "select nome from usuario", soci::into(name);
    EXPECT_EQ(name, "Carla");
}

TEST_F(DataSource, ThatMayNotBeReadEitherIsRefused)
{
    const std::string path = MakeEmptyShop("loja.db");
    fs::permissions(path, fs::perms::owner_write);
    fs::permissions(folder_.Path(), fs::perms::all);
    const OrdinaryRights ordinary;
    EXPECT_THROW(OpenForReading(path), Failure);
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
