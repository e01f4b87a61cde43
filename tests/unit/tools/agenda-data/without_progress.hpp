#pragma once

#include <sstream>
#include <string>

namespace kova::data::test {

/// What a command has told, without how far its work was: "Arquivamento: 100% (7 de 7)".
inline std::string WithoutProgress(const std::string& told)
{
    std::istringstream lines(told);
    std::string kept;
    for (std::string line; std::getline(lines, line);) {
        if (line.find("% (") == std::string::npos)
            kept += line + "\n";
    }
    return kept;
}

} // namespace kova::data::test
