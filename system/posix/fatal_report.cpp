#include "system/fatal_report.hpp"

#include "system/path_text.hpp"

#include <execinfo.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <string>
#include <string_view>

namespace kova::system {

namespace {

struct Fault {
    int signal;
    std::string_view name;
};

constexpr std::array<Fault, 5> Faults{{
    {SIGSEGV, "SIGSEGV: memory that is not the program's\n"},
    {SIGBUS, "SIGBUS: memory that has gone\n"},
    {SIGFPE, "SIGFPE: a calculation without a result\n"},
    {SIGILL, "SIGILL: an instruction that is none\n"},
    {SIGABRT, "SIGABRT: the program gave itself up\n"},
}};

constexpr int MostCalls = 64;
constexpr std::size_t OtherStackBytes = 64 * 1024;

// Who writes after a fault may ask nobody for memory: everything lies ready. They are never taken back, since
// a fault may come while the process ends.
const char* reportFile = nullptr;
const char* reportHeading = nullptr;
alignas(16) std::array<char, OtherStackBytes> otherStack;
volatile std::sig_atomic_t isReporting = 0;

void Write(int file, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(file, text.data(), text.size());
        if (written <= 0)
            return;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

void WriteReport(int number)
{
    const int file = ::open(reportFile, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (file < 0)
        return;
    Write(file, reportHeading);
    for (const Fault& fault : Faults) {
        if (fault.signal == number)
            Write(file, fault.name);
    }
    std::array<void*, MostCalls> calls{};
    ::backtrace_symbols_fd(calls.data(), ::backtrace(calls.data(), MostCalls), file);
    ::close(file);
}

extern "C" void OnFatalSignal(int number)
{
    // A fault while it is told of, or in a second thread, ends the process at once.
    if (isReporting == 0) {
        isReporting = 1;
        WriteReport(number);
    }
    std::signal(number, SIG_DFL);
    ::raise(number);
}

/// Whoever watches the program from within, such as a sanitizer, tells more.
bool MayBeTaken(int number)
{
    struct sigaction former { };
    ::sigaction(number, nullptr, &former);
    return former.sa_handler == SIG_DFL || former.sa_handler == OnFatalSignal;
}

} // namespace

void WriteOnFatalFailure(const FatalReport& report)
{
    if (!MayBeTaken(SIGSEGV))
        return;
    static auto& kept = *new std::deque<std::string>;
    reportFile = kept.emplace_back(TextOf(report.file)).c_str();
    reportHeading = kept.emplace_back(report.heading).c_str();
    // The first call loads a library.
    std::array<void*, 1> call{};
    ::backtrace(call.data(), 1);

    // A stack that has run over has no room for the report.
    stack_t stack{};
    stack.ss_sp = otherStack.data();
    stack.ss_size = otherStack.size();
    ::sigaltstack(&stack, nullptr);
    struct sigaction action { };
    action.sa_handler = OnFatalSignal;
    action.sa_flags = SA_ONSTACK | static_cast<int>(SA_NODEFER);
    for (const Fault& fault : Faults)
        ::sigaction(fault.signal, &action, nullptr);
}

} // namespace kova::system
