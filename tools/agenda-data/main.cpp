#include "system/command_line.hpp"
#include "system/hidden_typing.hpp"
#include "tools/agenda-data/commands.hpp"

#include <ctime>
#include <iostream>

namespace {

kova::DateTime Now()
{
    const std::time_t now = std::time(nullptr);
    // The one place that asks, before there is a second thread.
    const std::tm local = *std::localtime(&now);
    return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
            {local.tm_hour, local.tm_min, local.tm_sec}};
}

} // namespace

int main(int count, char** words)
{
    kova::system::UseUtf8Streams();
    return kova::data::Run(kova::system::Arguments(count, words), Now(), std::cout, std::cerr,
                           {std::cin, kova::system::IsInputTyped()}, true);
}
