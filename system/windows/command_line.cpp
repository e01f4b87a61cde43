#include "system/command_line.hpp"

#include "system/hidden_typing.hpp"
#include "system/windows/wide_text.hpp"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <streambuf>

namespace kova::system {

namespace {

/// A program with a window of its own is begun without streams, unless they lead somewhere.
void UseCallersConsole()
{
    const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
    if ((output != nullptr && output != INVALID_HANDLE_VALUE) || !::AttachConsole(ATTACH_PARENT_PROCESS))
        return;
    for (std::FILE* stream : {stdout, stderr}) {
        if (std::freopen("CONOUT$", "wb", stream) != nullptr)
            std::setvbuf(stream, nullptr, _IONBF, 0);
    }
}

/// The console's code is its own: it is given back at the end.
void WriteUtf8()
{
    static const UINT former = ::GetConsoleOutputCP();
    if (former != 0 && former != CP_UTF8 && ::SetConsoleOutputCP(CP_UTF8))
        std::atexit([] { ::SetConsoleOutputCP(former); });
}

/// What is typed at the console. Its bytes do not know every character.
class ConsoleInput : public std::streambuf {
private:
    int_type underflow() override
    {
        std::array<wchar_t, 512> typed;
        DWORD count = 0;
        if (!::ReadConsoleW(::GetStdHandle(STD_INPUT_HANDLE), typed.data(), typed.size(), &count, nullptr)
            || count == 0)
            return traits_type::eof();
        text_ = Narrow({typed.data(), count});
        setg(text_.data(), text_.data(), text_.data() + text_.size());
        return traits_type::to_int_type(text_.front());
    }

    std::string text_;
};

} // namespace

/// main() is given words in an older code that does not know every character.
std::vector<std::string> Arguments(int, const char* const*)
{
    int count = 0;
    LPWSTR* words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int at = 1; words != nullptr && at < count; ++at)
        arguments.push_back(Narrow(words[at]));
    ::LocalFree(words);
    return arguments;
}

void UseUtf8Streams()
{
    UseCallersConsole();
    WriteUtf8();
    for (std::FILE* stream : {stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
    static ConsoleInput input;
    if (IsInputTyped())
        std::cin.rdbuf(&input);
}

} // namespace kova::system
