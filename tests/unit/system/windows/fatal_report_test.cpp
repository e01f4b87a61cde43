#include "system/windows/handle.hpp"
#include "system/windows/wide_text.hpp"
#include "tests/unit/system/folder_fixture.hpp"

#include <stdexcept>
#include <string>

namespace kova::system {

namespace {

constexpr DWORD NoMemoryOfItsOwn = EXCEPTION_ACCESS_VIOLATION;
/// What the runtime of C ends with behind abort().
constexpr DWORD GivenUp = 3;

/// Runs the program; what it says of itself goes nowhere, and no window asks what to do about it.
DWORD StatusOf(std::wstring commandLine)
{
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    STARTUPINFOW streams{};
    streams.cb = sizeof streams;
    streams.dwFlags = STARTF_USESTDHANDLES;
    PROCESS_INFORMATION begun{};
    if (!::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &streams,
                          &begun))
        throw std::runtime_error("The failing program could not be started");
    const Handle process(begun.hProcess), thread(begun.hThread);
    DWORD status = 0;
    ::WaitForSingleObject(process.Get(), INFINITE);
    ::GetExitCodeProcess(process.Get(), &status);
    return status;
}

class AFatalReportOnWindows : public FolderTest {
protected:
    /// Ends a program that writes reports, by that kind of fault, and answers its status.
    DWORD EndBy(const std::string& kind, const std::string& report = "relato.txt") const
    {
        return StatusOf(Wide("\"" TEST_FAILING_PROGRAM "\" \"" + In(report) + "\" \"" + kind + "\""));
    }

    std::string Report() const { return ContentOf(In("relato.txt")); }
};

} // namespace

TEST_F(AFatalReportOnWindows, TellsTheFaultAndTheCallsAndLeavesTheProcessToItsEnd)
{
    const struct {
        const char* kind;
        DWORD fault;
    } faults[] = {{"memory", NoMemoryOfItsOwn},
                  {"thread", NoMemoryOfItsOwn},
                  {"division", EXCEPTION_INT_DIVIDE_BY_ZERO}};
    for (const auto& [kind, fault] : faults) {
        EXPECT_EQ(EndBy(kind), fault) << kind;
        EXPECT_TRUE(Report().starts_with("kovaris 0.1.0\n0x")) << kind << ": " << Report();
        EXPECT_NE(Report().find("\ntest_failing.exe+0x"), std::string::npos) << kind << ": " << Report();
        Write(In("relato.txt"), "");
    }
}

TEST_F(AFatalReportOnWindows, NamesTheFault)
{
    EndBy("memory");
    EXPECT_NE(Report().find("\n0xC0000005: memory that is not the program's\n"), std::string::npos)
        << Report();
}

TEST_F(AFatalReportOnWindows, NamesNoFolder)
{
    EndBy("memory");
    EXPECT_EQ(Report().find('\\'), std::string::npos) << Report();
}

TEST_F(AFatalReportOnWindows, IsWrittenOfAProgramThatGivesItselfUp)
{
    EXPECT_EQ(EndBy("abort"), GivenUp);
    EXPECT_NE(Report().find("\nSIGABRT: the program gave itself up\n"), std::string::npos) << Report();
    EXPECT_NE(Report().find("\ntest_failing.exe+0x"), std::string::npos) << Report();
}

TEST_F(AFatalReportOnWindows, IsWrittenOfAnExceptionThatNobodyCatchesWithoutItsWords)
{
    for (const char* kind : {"exception", "exception in a thread", "exception where none may be"}) {
        EXPECT_EQ(EndBy(kind), GivenUp) << kind;
        EXPECT_NE(Report().find("SIGABRT"), std::string::npos) << kind << ": " << Report();
        EXPECT_EQ(Report().find("Maria"), std::string::npos) << kind << ": " << Report();
        Write(In("relato.txt"), "");
    }
}

TEST_F(AFatalReportOnWindows, IsNotWrittenOfAProgramThatEndsByItself)
{
    EXPECT_EQ(EndBy("nothing"), 0U);
    EXPECT_FALSE(IsThere(In("relato.txt")));
}

TEST_F(AFatalReportOnWindows, ThatCannotBeWrittenChangesNothing)
{
    EXPECT_EQ(EndBy("memory", "falta/relato.txt"), NoMemoryOfItsOwn);
    EXPECT_EQ(EndBy("abort", "falta/relato.txt"), GivenUp);
}

} // namespace kova::system
