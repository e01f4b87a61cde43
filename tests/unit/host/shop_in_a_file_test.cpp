// A shop's file that this program has open while another one comes and goes.

#include "family/data/sources/data_source.hpp"
#include "tests/unit/host/program_run.hpp"

#include <gtest/gtest.h>

namespace kova::host::test {

namespace {

class ShopInAFile : public testing::Test {
protected:
    ShopInAFile()
    {
        const ProgramResult made = RunProgram(
            BuildFolder() / "agenda-data", {"create", File(), "--company", "Pet Shop Céu"}, folder_.Path());
        EXPECT_EQ(made.status, 0) << made.errors;
    }

    std::string File() const { return (folder_.Path() / "loja.db").string(); }
    /// It opens the shop to work with it, and closes.
    void AnotherProgramComesAndGoes()
    {
        const ProgramResult shown = RunKovaris({"--database", File()}, folder_.Path());
        EXPECT_EQ(shown.status, 0) << shown.errors;
    }
    bool HasLog() const { return fs::exists(File() + "-wal"); }

    TemporaryFolder folder_;
};

} // namespace

TEST_F(ShopInAFile, KeepsItsLogWhileItIsOpenHere)
{
    const auto open = family::OpenDatabase(File());
    AnotherProgramComesAndGoes();
    EXPECT_TRUE(HasLog());
}

TEST_F(ShopInAFile, KeepsItsLogWhereItWasOpenedASecondTimeHere)
{
    const auto open = family::OpenDatabase(File());
    family::OpenDatabase(File());
    AnotherProgramComesAndGoes();
    EXPECT_TRUE(HasLog()) << "what is written into a log that nobody finds is lost";
}

TEST_F(ShopInAFile, KeepsItsLogWhereItWasLookedAtHere)
{
    const auto open = family::OpenDatabase(File());
    EXPECT_EQ(family::CheckDataSource(File()), std::nullopt);
    EXPECT_TRUE(family::DataSourceExists(File()));
    family::OpenForReading(File());
    AnotherProgramComesAndGoes();
    EXPECT_TRUE(HasLog());
}

TEST_F(ShopInAFile, IsFoundBehindALink)
{
    const fs::path link = folder_.Path() / "atalho.db";
    fs::create_symlink(File(), link);
    EXPECT_EQ(family::CheckDataSource(link.string()), std::nullopt);
    const fs::path nowhere = folder_.Path() / "nada.db";
    WriteFile(nowhere, "isto não é um banco de dados");
    EXPECT_NE(family::CheckDataSource(nowhere.string()), std::nullopt);
}

} // namespace kova::host::test
