#include "system/fatal_report.hpp"

// The system's header comes first wherever it is needed: without it the others lack their types.
#include <windows.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <string>
#include <string_view>

namespace kova::system {

namespace {

struct Fault {
    DWORD number;
    std::string_view name;
};

constexpr std::array<Fault, 6> Faults{{
    {EXCEPTION_ACCESS_VIOLATION, "memory that is not the program's"},
    {EXCEPTION_IN_PAGE_ERROR, "memory that has gone"},
    {EXCEPTION_INT_DIVIDE_BY_ZERO, "a calculation without a result"},
    {EXCEPTION_ILLEGAL_INSTRUCTION, "an instruction that is none"},
    {EXCEPTION_PRIV_INSTRUCTION, "an instruction that is not the program's"},
    {EXCEPTION_STACK_OVERFLOW, "calls within calls without an end"},
}};

constexpr int MostCalls = 64;
constexpr ULONG OtherStackBytes = 64 * 1024;

// Who writes after a fault may ask nobody for memory: everything lies ready. They are never taken back, since
// a fault may come while the process ends.
const wchar_t* reportFile = nullptr;
const std::string* reportHeading = nullptr;
LPTOP_LEVEL_EXCEPTION_FILTER formerFilter = nullptr;
std::array<wchar_t, 2048> libraryPath;
std::atomic_flag isReporting;

void Write(HANDLE file, std::string_view text)
{
    DWORD written = 0;
    ::WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

void WriteNumber(HANDLE file, std::uint64_t number)
{
    std::array<char, 16> digits{};
    std::size_t first = digits.size();
    do {
        digits[--first] = "0123456789ABCDEF"[number % 16];
        number /= 16;
    } while (number > 0);
    Write(file, "0x");
    Write(file, {digits.data() + first, digits.size() - first});
}

/// The library's name without its folder, which may bear the user's.
void WriteLibrary(HANDLE file, HMODULE library)
{
    const auto size = static_cast<DWORD>(libraryPath.size());
    const std::wstring_view path(libraryPath.data(), ::GetModuleFileNameW(library, libraryPath.data(), size));
    const std::wstring_view name = path.substr(path.rfind(L'\\') + 1);
    std::array<char, 512> narrow{};
    const int length =
        ::WideCharToMultiByte(CP_UTF8, 0, name.data(), static_cast<int>(name.size()), narrow.data(),
                              static_cast<int>(narrow.size()), nullptr, nullptr);
    Write(file, {narrow.data(), static_cast<std::size_t>(length)});
}

/// The library and the place in it, wherever the system has put it this time.
void WritePlace(HANDLE file, DWORD64 place)
{
    HMODULE library = nullptr;
    constexpr DWORD ByPlace =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (::GetModuleHandleExW(ByPlace, reinterpret_cast<LPCWSTR>(place), &library)) {
        WriteLibrary(file, library);
        Write(file, "+");
        place -= reinterpret_cast<DWORD64>(library);
    }
    WriteNumber(file, place);
    Write(file, "\n");
}

/// From a call to the one that has made it.
void StepOut(CONTEXT& call)
{
    DWORD64 library = 0;
    PRUNTIME_FUNCTION function = ::RtlLookupFunctionEntry(call.Rip, &library, nullptr);
    if (function == nullptr) {
        // Without work of its own on the stack: what lies there is the way back.
        call.Rip = *reinterpret_cast<const DWORD64*>(call.Rsp);
        call.Rsp += sizeof(DWORD64);
        return;
    }
    PVOID data = nullptr;
    DWORD64 frame = 0;
    ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, library, call.Rip, function, &call, &data, &frame, nullptr);
}

void WriteCalls(HANDLE file, CONTEXT call)
{
    // The first may be nowhere: the call of a function that is none.
    int count = 0;
    do {
        WritePlace(file, call.Rip);
        StepOut(call);
    } while (call.Rip != 0 && ++count < MostCalls);
}

HANDLE OpenReport()
{
    const HANDLE file = ::CreateFileW(reportFile, GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE)
        Write(file, *reportHeading);
    return file;
}

/// A fault while it is told of, or in a second thread, ends the process at once.
bool MayReport() { return !isReporting.test_and_set(); }

LONG WINAPI OnFault(EXCEPTION_POINTERS* fault)
{
    // The runtime of C++ comes by here too, and goes on to std::terminate().
    const LONG answer = formerFilter != nullptr ? formerFilter(fault) : EXCEPTION_CONTINUE_SEARCH;
    if (answer != EXCEPTION_CONTINUE_SEARCH || !MayReport())
        return answer;
    const HANDLE file = OpenReport();
    if (file == INVALID_HANDLE_VALUE)
        return answer;
    const DWORD number = fault->ExceptionRecord->ExceptionCode;
    WriteNumber(file, number);
    for (const Fault& known : Faults) {
        if (known.number == number) {
            Write(file, ": ");
            Write(file, known.name);
        }
    }
    Write(file, "\n");
    WriteCalls(file, *fault->ContextRecord);
    ::CloseHandle(file);
    return answer;
}

extern "C" void OnAbort(int)
{
    if (!MayReport())
        return;
    const HANDLE file = OpenReport();
    if (file == INVALID_HANDLE_VALUE)
        return;
    Write(file, "SIGABRT: the program gave itself up\n");
    CONTEXT call{};
    ::RtlCaptureContext(&call);
    WriteCalls(file, call);
    ::CloseHandle(file);
}

} // namespace

void WriteOnFatalFailure(const FatalReport& report)
{
    static auto& files = *new std::deque<std::wstring>;
    static auto& headings = *new std::deque<std::string>;
    reportFile = files.emplace_back(report.file.native()).c_str();
    reportHeading = &headings.emplace_back(report.heading);
    // A stack that has run over has no room for the report.
    ULONG reserved = OtherStackBytes;
    ::SetThreadStackGuarantee(&reserved);
    const auto former = ::SetUnhandledExceptionFilter(OnFault);
    if (former != OnFault)
        formerFilter = former;
    // The runtime would show its own words in a window before the report is written.
    ::_set_error_mode(_OUT_TO_STDERR);
    std::signal(SIGABRT, OnAbort);
}

} // namespace kova::system
