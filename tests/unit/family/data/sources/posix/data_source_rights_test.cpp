// Shops in files to which not everybody has every right.

#include "tests/support/ordinary_rights.hpp"
#include "tests/unit/family/data/sources/data_source_fixture.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/rows.hpp"
#include "tools/agenda-data/commands.hpp"

#include <sqlite3.h>

#include <sstream>

namespace kova::family::test {

namespace fs = std::filesystem;

using kova::test::OrdinaryRights;

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

} // namespace

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

} // namespace kova::family::test
