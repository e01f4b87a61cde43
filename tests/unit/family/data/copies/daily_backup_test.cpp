#include "tests/support/own_file.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/copies/daily_backup.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "system/path_text.hpp"

#include <algorithm>

namespace kova::family::test {

namespace fs = std::filesystem;

class DailyBackup : public ShopTest {
protected:
    DailyBackup() : shop_(host_.DataSource()), shopFolder_(system::PathOf(shop_).parent_path()) { }

    /// The dates of the copies that are there.
    std::vector<std::string> Days() const
    {
        std::vector<std::string> days;
        for (const auto& entry : fs::directory_iterator(shopFolder_)) {
            const std::string name = system::TextOf(entry.path().filename());
            const std::size_t mark = name.find(".copia-");
            if (mark != std::string::npos)
                days.push_back(name.substr(mark + 7));
        }
        std::sort(days.begin(), days.end());
        return days;
    }

    std::string shop_;
    fs::path shopFolder_;
};

TEST_F(DailyBackup, IsMadeOnceADay)
{
    EXPECT_TRUE(MakeDailyBackup(shop_, {2026, 11, 20}, {}));
    EXPECT_FALSE(MakeDailyBackup(shop_, {2026, 11, 20}, {}));
    EXPECT_TRUE(MakeDailyBackup(shop_, {2026, 11, 21}, {}));
    EXPECT_EQ(Days(), (std::vector<std::string>{"2026-11-20.bak", "2026-11-21.bak"}));
    EXPECT_EQ(CheckDataSource(DailyBackupName(shop_, {2026, 11, 20})), std::nullopt);
}

TEST_F(DailyBackup, KeepsTheLastFourteenAndTouchesNoOtherFile)
{
    const std::vector<std::string> others = {"loja.db.copia-2026-10-01.bak.txt", "loja.db.copia-de-junho.bak",
                                             "outra.db.copia-2026-10-01.bak", "loja.db.copia-2026-10-1.bak",
                                             "loja.db.antes-da-versao-3.bak"};
    for (const std::string& name : others)
        WriteContent(system::TextOf(shopFolder_ / name), "nota");
    fs::create_directory(shopFolder_ / "loja.db.copia-2026-10-02.bak");
    for (int day = 1; day <= 17; ++day)
        ASSERT_TRUE(MakeDailyBackup(shop_, {2026, 11, day}, {}));
    for (int day = 1; day <= 17; ++day)
        EXPECT_EQ(fs::exists(system::PathOf(DailyBackupName(shop_, {2026, 11, day}))), day > 3) << day;
    for (const std::string& name : others)
        EXPECT_EQ(ContentOf(system::TextOf(shopFolder_ / name)), "nota") << name;
    EXPECT_TRUE(fs::is_directory(shopFolder_ / "loja.db.copia-2026-10-02.bak"));
}

TEST_F(DailyBackup, IsForItsOwnerAloneAndSoAreFormerOnes)
{
    const std::string former = DailyBackupName(shop_, {2026, 11, 19});
    const std::string today = DailyBackupName(shop_, {2026, 11, 20});
    WriteContent(former, "");
    fs::permissions(system::PathOf(former), static_cast<fs::perms>(0644));
    EXPECT_TRUE(MakeDailyBackup(shop_, {2026, 11, 20}, {}));
    for (const std::string& file : {former, today})
        EXPECT_TRUE(kova::test::IsForItsOwnerAlone(file)) << file;
}

TEST_F(DailyBackup, OfTodayStaysAlsoWhereAWrongClockMadeLaterOnes)
{
    for (int day = 1; day <= 14; ++day)
        WriteContent(DailyBackupName(shop_, {2099, 1, day}), "");
    EXPECT_TRUE(MakeDailyBackup(shop_, {2026, 11, 20}, {}));
    EXPECT_TRUE(fs::exists(system::PathOf(DailyBackupName(shop_, {2026, 11, 20}))));
    EXPECT_EQ(Days().size(), DailyBackupsKept);
}

TEST_F(DailyBackup, OfTodayStaysAlsoWhereThePathIsSpeltInAnotherWay)
{
    for (int day = 1; day <= 14; ++day)
        WriteContent(DailyBackupName(shop_, {2099, 1, day}), "");
    const std::string other =
        system::TextOf(shopFolder_) + "//" + system::TextOf(system::PathOf(shop_).filename());
    EXPECT_TRUE(MakeDailyBackup(other, {2026, 11, 20}, {}));
    EXPECT_TRUE(fs::exists(system::PathOf(DailyBackupName(shop_, {2026, 11, 20}))));
    EXPECT_EQ(Days().size(), DailyBackupsKept);
}

TEST_F(DailyBackup, ClearsWhatAKilledAttemptHasLeftAndNothingThatIsBeingMade)
{
    const std::string killed = DailyBackupName(shop_, {2026, 11, 18});
    WriteContent(UnfinishedName(killed), "resto");
    WriteContent(UnfinishedName(killed) + "-wal", "resto");
    const UnfinishedFile living(DailyBackupName(shop_, {2026, 11, 19}));
    MakeDailyBackup(shop_, {2026, 11, 20}, {});
    EXPECT_FALSE(fs::exists(system::PathOf(UnfinishedName(killed))));
    EXPECT_FALSE(fs::exists(system::PathOf(UnfinishedName(killed) + "-wal")));
    EXPECT_TRUE(fs::exists(system::PathOf(living.Name())));
}

TEST_F(DailyBackup, ThatAnotherProgramIsMakingIsLeftToIt)
{
    const UnfinishedFile other(DailyBackupName(shop_, {2026, 11, 20}));
    EXPECT_FALSE(MakeDailyBackup(shop_, {2026, 11, 20}, {}));
    EXPECT_TRUE(fs::exists(system::PathOf(other.Name())));
}

TEST_F(DailyBackup, ThatFailsTakesNoFormerOneAway)
{
    for (int day = 1; day <= 14; ++day)
        WriteContent(DailyBackupName(shop_, {2026, 11, day}), "");
    WriteContent(shop_, "nota");
    EXPECT_THROW(MakeDailyBackup(shop_, {2026, 11, 20}, {}), Failure);
    EXPECT_EQ(Days().size(), 14U);
}

TEST_F(DailyBackup, LeavesServersToThemselves)
{
    EXPECT_FALSE(MakeDailyBackup("postgresql://servidor/loja", {2026, 11, 20}, {}));
}

} // namespace kova::family::test
