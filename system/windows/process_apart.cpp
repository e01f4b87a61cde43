#include "system/process_apart.hpp"

#include "system/program_path.hpp"
#include "system/windows/handle.hpp"
#include "system/windows/last_error.hpp"

#include <cstdlib>
#include <string>

namespace kova::system {

namespace {

/// Tells the program that was begun anew that it is.
constexpr const wchar_t* Mark = L"KOVARIS_APART";

bool IsApart() { return ::GetEnvironmentVariableW(Mark, nullptr, 0) > 0; }

/// The program once more, with the command line, the streams and the folder of this one.
PROCESS_INFORMATION BeginAnew()
{
    const std::filesystem::path program = ProgramPath();
    std::wstring commandLine = ::GetCommandLineW();
    STARTUPINFOW streams{};
    streams.cb = sizeof streams;
    PROCESS_INFORMATION process{};
    ::SetEnvironmentVariableW(Mark, L"1");
    const BOOL begun = ::CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0,
                                        nullptr, nullptr, &streams, &process);
    const std::error_code error = LastError();
    ::SetEnvironmentVariableW(Mark, nullptr);
    if (!begun)
        throw std::system_error(error);
    return process;
}

/// No window asks what to do about a crash.
[[noreturn]] void EndWith(const std::function<int()>& work)
{
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    std::exit(work());
}

} // namespace

ProcessEnd RunApart(const std::function<int()>& work)
{
    if (IsApart())
        EndWith(work);
    const PROCESS_INFORMATION begun = BeginAnew();
    const Handle process(begun.hProcess), thread(begun.hThread);
    DWORD status = 0;
    ::WaitForSingleObject(process.Get(), INFINITE);
    ::GetExitCodeProcess(process.Get(), &status);
    // The system's numbers of faults begin here; no exit status of a program is so high.
    constexpr DWORD FirstFault = 0xC0000000;
    return {status >= FirstFault, static_cast<int>(status)};
}

} // namespace kova::system
