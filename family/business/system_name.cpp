#include "family/business/system_name.hpp"

#include <sys/utsname.h>

#include <fstream>

namespace kova::family {

namespace {

std::string Unquoted(std::string text)
{
    const bool quoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

} // namespace

std::string SystemName(const std::string& releaseFile)
{
    constexpr std::string_view key = "PRETTY_NAME=";
    std::ifstream file(releaseFile);
    for (std::string line; std::getline(file, line);) {
        const std::string name =
            line.compare(0, key.size(), key) == 0 ? Unquoted(line.substr(key.size())) : "";
        if (!name.empty())
            return name;
    }
    utsname system{};
    return uname(&system) == 0 ? system.sysname : "Linux";
}

} // namespace kova::family
