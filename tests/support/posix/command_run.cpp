#include "tests/support/command_run.hpp"

#include <sys/wait.h>

#include <array>
#include <cstdio>

namespace kova::test {

CommandEnd RunCommand(const std::string& line)
{
    CommandEnd end;
    FILE* pipe = popen((line + " 2>&1").c_str(), "r");
    std::array<char, 4096> part{};
    while (const std::size_t read = std::fread(part.data(), 1, part.size(), pipe))
        end.text.append(part.data(), read);
    const int status = pclose(pipe);
    end.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return end;
}

} // namespace kova::test
