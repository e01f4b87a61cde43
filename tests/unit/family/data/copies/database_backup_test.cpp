#include "tests/support/network_disk.hpp"
#include "tests/support/own_file.hpp"
#include "tests/support/small_files.hpp"
#include "tests/unit/family/server_fixture.hpp"

#include "family/data/copies/database_backup.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/rows/insert_new_row.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/numbering.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/trial_restore.hpp"
#include "system/path_text.hpp"

#include <algorithm>
#include <atomic>
#include <thread>

namespace kova::family::test {

namespace fs = std::filesystem;

namespace {

long long RowsOf(const std::string& path, const std::string& table)
{
    long long rows = 0;
    OpenForReading(path)->Session() << "select count(*) from " + table, soci::into(rows);
    return rows;
}

/// Overwrites the middle of a file.
void Damage(const std::string& path)
{
    std::string content = ContentOf(path);
    std::fill(content.begin() + static_cast<long>(content.size()) / 3, content.end(), 'x');
    WriteContent(path, content);
}

/// Writes a company and a user in each transaction, until it is told to end.
class BusyDesk {
public:
    explicit BusyDesk(const std::string& path)
        : database_(OpenDatabase(path)), thread_([this](const std::stop_token& stop) { Write(stop); })
    {
    }

    void AwaitAWrite() const
    {
        const long before = written_;
        while (written_ == before)
            std::this_thread::yield();
    }

private:
    void Write(const std::stop_token& stop)
    {
        while (!stop.stop_requested()) {
            soci::transaction transaction(database_->Session());
            InsertNew(*database_, CompanyRow{0, "Filial", "", "", "", ""});
            InsertNew(*database_, UserRow{0, "Carla"});
            transaction.commit();
            ++written_;
        }
    }

    std::shared_ptr<Database> database_;
    std::atomic<long> written_ = 0;
    std::jthread thread_;
};

} // namespace

namespace {

const Author Carla{"0", "Carla", "2026-11-20 09:00:00", "BALCAO-1"};

} // namespace

class DatabaseBackup : public ShopTest {
protected:
    DatabaseBackup() : shop_(host_.DataSource()), copy_(folder_ / "copia.bak") { }

    /// The names in the folder, the shop's own files left out.
    std::vector<std::string> OtherFiles() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_.Path())) {
            const std::string name = system::TextOf(entry.path().filename());
            if (name.rfind("loja.db", 0) != 0)
                names.push_back(name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string shop_, copy_;
};

TEST_F(DatabaseBackup, HoldsEveryRowAndIsRestoredToAShopThatOpens)
{
    const std::vector<TableCount> counts = BackUpDatabase(shop_, copy_, {});
    EXPECT_EQ(OtherFiles(), std::vector<std::string>{"copia.bak"});
    EXPECT_EQ(RestoreDatabase(copy_, folder_ / "nova.db", Carla, {}), counts);
    std::vector<TableCount> restored = CountRows(*OpenDatabase(folder_ / "nova.db"));
    for (TableCount& count : restored) {
        // The line that tells of it, and its link.
        if (count.name == "auditoria" || count.name == "elo_da_auditoria")
            --count.rows;
    }
    EXPECT_EQ(restored, counts);
    EXPECT_EQ(RowsOf(folder_ / "nova.db", "agendamento"), 9);
}

TEST_F(DatabaseBackup, HoldsOneMomentWhileADeskGoesOnWriting)
{
    const BusyDesk desk(shop_);
    for (int time = 0; time < 5; ++time) {
        const std::string copy = folder_ / ("copia" + std::to_string(time) + ".bak");
        LongWork work;
        // The copy's moment is held open here; the desk does not wait for it.
        work.progress = [&](long long, long long) { desk.AwaitAWrite(); };
        BackUpDatabase(shop_, copy, work);
        EXPECT_EQ(RowsOf(copy, "empresa"), RowsOf(copy, "usuario") + 1);
    }
}

TEST_F(DatabaseBackup, ThatIsDamagedOnTheDiskIsNotTakenForACopy)
{
    LongWork work;
    work.progress = [&](long long, long long) { Damage(UnfinishedName(copy_)); };
    EXPECT_NE(FailureOf([&] { BackUpDatabase(shop_, copy_, work); }).find("danificado"), std::string::npos);
    EXPECT_TRUE(OtherFiles().empty());
}

TEST_F(DatabaseBackup, ThatLacksARowIsNotTakenForACopy)
{
    std::vector<TableCount> counts = BackUpDatabase(shop_, copy_, {});
    EXPECT_EQ(FailureOf([&] { TrialRestore(copy_, counts, {}); }), "");
    ++std::ranges::find(counts, "servico", &TableCount::name)->rows;
    const std::string refusal = FailureOf([&] { TrialRestore(copy_, counts, {}); });
    EXPECT_NE(refusal.find("prova de restauração"), std::string::npos) << refusal;
    EXPECT_NE(refusal.find("servico"), std::string::npos) << refusal;
}

TEST_F(DatabaseBackup, WithAReferenceThatLeadsNowhereIsNotTakenForACopy)
{
    RunUnchecked(shop_, "delete from raca");
    EXPECT_NE(FailureOf([&] { BackUpDatabase(shop_, copy_, {}); }).find("referências"), std::string::npos);
    EXPECT_TRUE(OtherFiles().empty());
}

TEST_F(DatabaseBackup, NeverReplacesAFile)
{
    WriteContent(copy_, "nota");
    EXPECT_NE(FailureOf([&] { BackUpDatabase(shop_, copy_, {}); }).find("já existe"), std::string::npos);
    EXPECT_EQ(ContentOf(copy_), "nota");
}

TEST_F(DatabaseBackup, NeverReplacesAFileThatCameMeanwhile)
{
    LongWork work;
    work.progress = [&](long long, long long) { WriteContent(copy_, "nota"); };
    EXPECT_NE(FailureOf([&] { BackUpDatabase(shop_, copy_, work); }).find("já existe"), std::string::npos);
    EXPECT_EQ(ContentOf(copy_), "nota");
    EXPECT_EQ(OtherFiles(), std::vector<std::string>{"copia.bak"});
}

TEST_F(DatabaseBackup, IsMadeByOneAtATime)
{
    const UnfinishedFile other(copy_);
    EXPECT_NE(FailureOf([&] { BackUpDatabase(shop_, copy_, {}); }).find("outro programa"), std::string::npos);
    EXPECT_TRUE(fs::exists(system::PathOf(other.Name())));
}

TEST_F(DatabaseBackup, WithoutRoomFailsAndLeavesNothing)
{
    OpenDatabase(shop_);
    // Half of what the shop's tables need.
    const kova::test::SmallFiles small(60'000);
    EXPECT_NE(FailureOf([&] { BackUpDatabase(shop_, copy_, {}); }).find(copy_), std::string::npos);
    EXPECT_TRUE(OtherFiles().empty());
}

TEST_F(DatabaseBackup, EndsWhereItIsAskedToAndLeavesNothing)
{
    std::stop_source source;
    LongWork work{[&](long long, long long) { source.request_stop(); }, source.get_token()};
    EXPECT_NE(FailureOf([&] { BackUpDatabase(shop_, copy_, work); }).find("interrompido"), std::string::npos);
    EXPECT_TRUE(OtherFiles().empty());
}

TEST_F(DatabaseBackup, IsRestoredFromWhereNothingCanBeWritten)
{
    BackUpDatabase(shop_, copy_, {});
    fs::permissions(system::PathOf(copy_), fs::perms::owner_read);
    RestoreDatabase(copy_, folder_ / "nova.db", Carla, {});
    EXPECT_NO_THROW(Insert(*OpenDatabase(folder_ / "nova.db"), UserRow{7, "Carla"}));
}

TEST_F(DatabaseBackup, IsForItsOwnerAloneAndSoIsWhatIsRestoredOfIt)
{
    BackUpDatabase(shop_, copy_, {});
    EXPECT_TRUE(kova::test::IsForItsOwnerAlone(copy_));
    fs::permissions(system::PathOf(copy_), fs::perms::all);
    RestoreDatabase(copy_, folder_ / "nova.db", Carla, {});
    EXPECT_TRUE(kova::test::IsForItsOwnerAlone(folder_ / "nova.db"));
}

TEST_F(DatabaseBackup, IsNotRestoredWhereThereIsNoRoom)
{
    BackUpDatabase(shop_, copy_, {});
    const kova::test::SmallFiles small(60'000);
    const std::string told = FailureOf([&] { RestoreDatabase(copy_, folder_ / "nova.db", Carla, {}); });
    EXPECT_NE(told.find(folder_ / "nova.db"), std::string::npos) << told;
    EXPECT_NE(told.find("O disco está cheio."), std::string::npos) << told;
    EXPECT_EQ(OtherFiles(), std::vector<std::string>{"copia.bak"});
}

TEST_F(DatabaseBackup, IsNotRestoredIntoAFolderThatIsMissing)
{
    BackUpDatabase(shop_, copy_, {});
    const std::string told =
        FailureOf([&] { RestoreDatabase(copy_, folder_ / "nenhuma/nova.db", Carla, {}); });
    EXPECT_NE(told.find(folder_ / "nenhuma"), std::string::npos) << told;
    EXPECT_NE(told.find("não existe"), std::string::npos) << told;
}

TEST_F(DatabaseBackup, IsNotRestoredOntoADiskOfTheNetworkButMadeThere)
{
    const kova::test::NetworkDisk share(system::TextOf(folder_.Path()));
    BackUpDatabase(shop_, copy_, {});
    const std::string told = FailureOf([&] { RestoreDatabase(copy_, folder_ / "nova.db", Carla, {}); });
    EXPECT_NE(told.find("pasta da rede"), std::string::npos) << told;
    EXPECT_EQ(OtherFiles(), std::vector<std::string>{"copia.bak"});
}

TEST_F(DatabaseBackup, NeverGivesANumberTwiceAfterItIsRestored)
{
    {
        const auto database = OpenDatabase(shop_);
        Insert(*database, UserRow{7, "Carla"});
        NumberOn(*database);
        database->Session() << "delete from usuario where codigo = 7";
    }
    BackUpDatabase(shop_, copy_, {});
    RestoreDatabase(copy_, folder_ / "nova.db", Carla, {});
    EXPECT_EQ(InsertNew(*OpenDatabase(folder_ / "nova.db"), UserRow{0, "Ana"}), 8);
}

TEST_F(DatabaseBackup, NeverReplacesAShopWhenItIsRestored)
{
    BackUpDatabase(shop_, copy_, {});
    WriteContent(folder_ / "nova.db", "nota");
    EXPECT_NE(FailureOf([&] { RestoreDatabase(copy_, folder_ / "nova.db", Carla, {}); }).find("já existe"),
              std::string::npos);
    EXPECT_EQ(ContentOf(folder_ / "nova.db"), "nota");
}

TEST_F(DatabaseBackup, ThatIsNoneIsNotRestored)
{
    WriteContent(copy_, "nota");
    const std::string nobody = folder_ / "nenhuma.bak";
    EXPECT_NE(FailureOf([&] { RestoreDatabase(copy_, folder_ / "a.db", Carla, {}); }).find(copy_),
              std::string::npos);
    EXPECT_NE(FailureOf([&] { RestoreDatabase(nobody, folder_ / "a.db", Carla, {}); }).find(nobody),
              std::string::npos);
    const std::string damaged = folder_ / "estragada.bak";
    BackUpDatabase(shop_, damaged, {});
    Damage(damaged);
    EXPECT_NE(FailureOf([&] { RestoreDatabase(damaged, folder_ / "a.db", Carla, {}); }).find("danificado"),
              std::string::npos);
    EXPECT_EQ(OtherFiles(), (std::vector<std::string>{"copia.bak", "estragada.bak"}));
}

TEST_F(DatabaseBackup, OfAnOlderSchemaIsRestoredAsItIsAndOpens)
{
    const std::string old = folder_ / "antigo.db";
    {
        Database database(SqliteDialect(), "dbname=" + old, old);
        Migrate(database.Session(), SqliteDialect(), CurrentMigrations().first(1));
    }
    BackUpDatabase(old, copy_, {});
    RestoreDatabase(copy_, folder_ / "nova.db", Carla, {});
    EXPECT_NO_THROW(Insert(*OpenDatabase(folder_ / "nova.db"), UserRow{7, "Carla"}));
}

} // namespace kova::family::test
