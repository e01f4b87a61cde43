#include "system/fatal_report.hpp"

#include "system/process_apart.hpp"
#include "tests/unit/system/folder_fixture.hpp"

#include <sys/stat.h>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <stdexcept>

namespace kova::system {

namespace {

class AFatalReport : public FolderTest {
protected:
    /// Ends a process that writes reports, by what it does.
    ProcessEnd EndBy(const std::function<void()>& fault) const
    {
        return RunApart([&] {
            // A sanitizer watches, too.
            std::signal(SIGSEGV, SIG_DFL);
            WriteOnFatalFailure({PathOf(In("relato.txt")), "kovaris 0.1.0\n"});
            fault();
            return 0;
        });
    }

    std::string Report() const { return ContentOf(In("relato.txt")); }
};

void ThrowWords() { throw std::runtime_error("Maria da Silva"); }

} // namespace

TEST_F(AFatalReport, TellsTheFaultAndTheCallsAndLeavesTheProcessToItsEnd)
{
    for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        const ProcessEnd end = EndBy([=] { std::raise(fault); });
        EXPECT_TRUE(end.crashed) << fault;
        EXPECT_EQ(end.number, fault);
        EXPECT_TRUE(Report().starts_with("kovaris 0.1.0\nSIG")) << Report();
        EXPECT_NE(Report().find("test_system"), std::string::npos) << Report();
    }
}

TEST_F(AFatalReport, IsWrittenOfAnExceptionThatNobodyCatchesWithoutItsWords)
{
    const ProcessEnd end = EndBy([]() noexcept { ThrowWords(); });
    EXPECT_EQ(end.number, SIGABRT);
    EXPECT_NE(Report().find("SIGABRT"), std::string::npos) << Report();
    EXPECT_EQ(Report().find("Maria"), std::string::npos) << Report();
}

TEST_F(AFatalReport, IsForThisUserAlone)
{
    EndBy([] { std::abort(); });
    struct stat state { };
    ASSERT_EQ(::stat(In("relato.txt").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777U, 0600U);
}

TEST_F(AFatalReport, IsNotWrittenOfAProcessThatEndsByItself)
{
    EXPECT_FALSE(EndBy([] {}).crashed);
    EXPECT_FALSE(IsThere(In("relato.txt")));
}

TEST_F(AFatalReport, ThatCannotBeWrittenChangesNothing)
{
    const ProcessEnd end = RunApart([&] {
        WriteOnFatalFailure({PathOf(In("falta/relato.txt")), ""});
        std::abort();
        return 0;
    });
    EXPECT_EQ(end.number, SIGABRT);
}

} // namespace kova::system
