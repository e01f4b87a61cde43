#include "system/system_name.hpp"

#include "system/path_text.hpp"
#include "system/posix/release_file.hpp"

#include <sys/utsname.h>

#include <fstream>

namespace kova::system {

namespace {

std::string Unquoted(std::string text)
{
    const bool quoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

} // namespace

std::string NameInReleaseFile(const std::string& path)
{
    constexpr std::string_view key = "PRETTY_NAME=";
    std::ifstream file(PathOf(path));
    for (std::string line; std::getline(file, line);) {
        const std::string name =
            line.compare(0, key.size(), key) == 0 ? Unquoted(line.substr(key.size())) : "";
        if (!name.empty())
            return name;
    }
    utsname own{};
    return ::uname(&own) == 0 ? own.sysname : "Linux";
}

std::string SystemName() { return NameInReleaseFile("/etc/os-release"); }

} // namespace kova::system
