#include "tests/support/command_run.hpp"

#include "system/windows/wide_text.hpp"

#include <array>
#include <cstdio>

namespace kova::test {

CommandEnd RunCommand(const std::string& line)
{
    CommandEnd end;
    FILE* pipe = _wpopen(system::Wide(line + " 2>&1").c_str(), L"rb");
    std::array<char, 4096> part{};
    while (const std::size_t read = std::fread(part.data(), 1, part.size(), pipe))
        end.text.append(part.data(), read);
    end.status = _pclose(pipe);
    return end;
}

} // namespace kova::test
