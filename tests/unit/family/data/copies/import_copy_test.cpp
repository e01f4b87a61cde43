#include "tests/support/own_file.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/copies/import_copy.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/sources/data_source.hpp"
#include "system/path_text.hpp"

#include <algorithm>

namespace kova::family::test {

namespace fs = std::filesystem;

class ImportCopy : public ShopTest {
protected:
    ImportCopy() : shop_(host_.DataSource()), shopFolder_(system::PathOf(shop_).parent_path()) { }

    std::string Named(const std::string& stamp) const
    {
        return shop_ + ".antes-da-importacao-" + stamp + ".bak";
    }

    /// The copy of 20/11/2026 at that minute after nine.
    std::string Copy(int minute) const
    {
        return CopyBeforeImport(shop_, {{2026, 11, 20}, {9, minute, 5}}, {});
    }

    /// The stamps of the copies that are there.
    std::vector<std::string> Stamps() const
    {
        std::vector<std::string> stamps;
        for (const auto& entry : fs::directory_iterator(shopFolder_)) {
            const std::string name = system::TextOf(entry.path().filename()), mark = ".antes-da-importacao-";
            if (const std::size_t at = name.find(mark); at != std::string::npos)
                stamps.push_back(name.substr(at + mark.size()));
        }
        std::ranges::sort(stamps);
        return stamps;
    }

    std::string shop_;
    fs::path shopFolder_;
};

TEST_F(ImportCopy, LiesBesideTheShopNamedAfterTheMomentAndIsForItsOwnerAlone)
{
    const std::string copy = Copy(7);
    EXPECT_EQ(copy, Named("2026-11-20-090705"));
    EXPECT_EQ(CheckDataSource(copy), std::nullopt);
    EXPECT_TRUE(kova::test::IsForItsOwnerAlone(copy));
}

TEST_F(ImportCopy, HoldsTheShopAsItIsAtThatMoment)
{
    const auto database = OpenDatabase(shop_);
    database->Session() << "update cliente set apelido = 'Antes'";
    const std::string copy = Copy(7);
    database->Session() << "update cliente set apelido = 'Depois'";
    std::string nickname;
    OpenForReading(copy)->Session() << "select max(apelido) from cliente", soci::into(nickname);
    EXPECT_EQ(nickname, "Antes");
}

TEST_F(ImportCopy, OfTheSameSecondGetsANameOfItsOwn)
{
    EXPECT_EQ(Copy(7), Named("2026-11-20-090705"));
    EXPECT_EQ(Copy(7), Named("2026-11-20-090705-02"));
    EXPECT_EQ(Copy(7), Named("2026-11-20-090705-03"));
}

TEST_F(ImportCopy, GoesByNameBehindTheFormerOnesOfItsSecondThoughTheFirstAreGone)
{
    for (int number = 2; number <= 8; ++number)
        WriteContent(Named("2026-11-20-090705-0" + std::to_string(number)), "");
    EXPECT_EQ(Copy(7), Named("2026-11-20-090705-09"));
    EXPECT_EQ(Copy(7), Named("2026-11-20-090705-10"));
    EXPECT_EQ(Stamps(),
              (std::vector<std::string>{"2026-11-20-090705-06.bak", "2026-11-20-090705-07.bak",
                                        "2026-11-20-090705-08.bak", "2026-11-20-090705-09.bak",
                                        "2026-11-20-090705-10.bak"}));
}

TEST_F(ImportCopy, StaysWithTheLastFiveAndTouchesNoOtherFile)
{
    const std::vector<std::string> others = {
        "loja.db.antes-da-importacao-2026-11-20-0907.bak", "loja.db.antes-da-importacao-de-junho.bak",
        "outra.db.antes-da-importacao-2026-11-20-090705.bak", "loja.db.copia-2026-11-01.bak"};
    for (const std::string& name : others)
        WriteContent(system::TextOf(shopFolder_ / name), "nota");
    Copy(10);
    Copy(10);
    for (int minute = 11; minute <= 15; ++minute)
        Copy(minute);
    for (const std::string& name : others)
        EXPECT_EQ(ContentOf(system::TextOf(shopFolder_ / name)), "nota") << name;
    for (const char* gone : {"2026-11-20-091005", "2026-11-20-091005-02"})
        EXPECT_FALSE(fs::exists(system::PathOf(Named(gone)))) << gone;
    for (int minute = 11; minute <= 15; ++minute)
        EXPECT_TRUE(fs::exists(system::PathOf(Named("2026-11-20-09" + std::to_string(minute) + "05"))))
            << minute;
}

TEST_F(ImportCopy, GoesTheOlderOneOfASecondFirst)
{
    Copy(10);
    Copy(10);
    for (int minute = 11; minute <= 14; ++minute)
        Copy(minute);
    EXPECT_FALSE(fs::exists(system::PathOf(Named("2026-11-20-091005"))));
    EXPECT_TRUE(fs::exists(system::PathOf(Named("2026-11-20-091005-02"))));
}

TEST_F(ImportCopy, JustMadeStaysAlsoWhereAWrongClockMadeLaterOnes)
{
    for (int minute = 10; minute <= 14; ++minute)
        WriteContent(Named("2099-11-20-09" + std::to_string(minute) + "05"), "");
    const std::string copy = Copy(7);
    EXPECT_TRUE(fs::exists(system::PathOf(copy)));
    EXPECT_EQ(Stamps().size(), ImportCopiesKept);
}

TEST_F(ImportCopy, ClearsWhatAKilledAttemptHasLeft)
{
    WriteContent(UnfinishedName(Named("2026-11-18-090000")), "resto");
    Copy(7);
    EXPECT_FALSE(fs::exists(system::PathOf(UnfinishedName(Named("2026-11-18-090000")))));
}

TEST_F(ImportCopy, ThatFailsTakesNoFormerOneAway)
{
    for (int minute = 10; minute <= 14; ++minute)
        WriteContent(Named("2026-11-20-08" + std::to_string(minute) + "05"), "");
    WriteContent(shop_, "nota");
    EXPECT_THROW(Copy(7), Failure);
    EXPECT_EQ(Stamps().size(), 5U);
}

TEST_F(ImportCopy, LeavesServersToThemselves)
{
    EXPECT_EQ(CopyBeforeImport("postgresql://servidor/loja", {{2026, 11, 20}, {9, 0, 0}}, {}), "");
}

} // namespace kova::family::test
