#include "system/command_line.hpp"

#include "system/windows/wide_text.hpp"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>

namespace kova::system {

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

void WriteBytesUnchanged()
{
    for (std::FILE* stream : {stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
}

} // namespace kova::system
