#include "host/session/fatal_reports.hpp"

#include "system/process_apart.hpp"
#include "tests/unit/host/program_run.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <vector>

namespace kova::host::test {

namespace {

class TheFatalReports : public testing::Test {
protected:
    /// A program that ends by a fault.
    void Crash() const
    {
        system::RunApart([this] {
            // A sanitizer watches, too.
            std::signal(SIGSEGV, SIG_DFL);
            reports_.Begin("uma loja em um arquivo");
            std::raise(SIGSEGV);
            return 0;
        });
    }

    std::vector<fs::path> Files() const
    {
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator(reports_.Folder()))
            files.push_back(entry.path());
        return files;
    }

    const TemporaryFolder home_;
    const FatalReports reports_{home_ / "relatos/falhas"};
};

} // namespace

TEST_F(TheFatalReports, AreNewsOnceAndStay)
{
    EXPECT_FALSE(reports_.TakeNews());
    Crash();
    EXPECT_TRUE(reports_.TakeNews());
    EXPECT_FALSE(reports_.TakeNews());
    ASSERT_EQ(Files().size(), 1U);
    Crash();
    EXPECT_TRUE(reports_.TakeNews());
    EXPECT_EQ(Files().size(), 2U);
}

TEST_F(TheFatalReports, TellVersionsAndWhatKindOfShopWasOpen)
{
    Crash();
    const std::string report = ContentOf(Files().front());
    EXPECT_TRUE(report.starts_with("Kovaris ")) << report;
    for (const char* part : {"Qt: 6", "Sistema: ", "uma loja em um arquivo", "SIGSEGV", "test_host"})
        EXPECT_NE(report.find(part), std::string::npos) << part << " in " << report;
}

TEST_F(TheFatalReports, AreNoneWhereNothingFailed)
{
    system::RunApart([this] {
        reports_.Begin("uma loja em um arquivo");
        return 0;
    });
    EXPECT_TRUE(Files().empty());
    EXPECT_FALSE(reports_.TakeNews());
}

TEST_F(TheFatalReports, AreDoneWithoutWhereTheirFolderCannotBeMade)
{
    WriteFile(home_ / "arquivo", "");
    const FatalReports reports(home_ / "arquivo/relatos");
    reports.Begin("uma loja em um arquivo");
    EXPECT_FALSE(reports.TakeNews());
}

} // namespace kova::host::test
