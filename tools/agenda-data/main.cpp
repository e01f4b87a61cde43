#include "tools/agenda-data/commands.hpp"

#include <ctime>
#include <iostream>

namespace {

kova::DateTime Now()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
            {local.tm_hour, local.tm_min, local.tm_sec}};
}

} // namespace

int main(int count, char** words)
{
    const std::span<const char* const> arguments(words + 1,
                                                 static_cast<std::size_t>(count > 0 ? count - 1 : 0));
    return kova::data::Run(arguments, Now(), std::cout, std::cerr);
}
