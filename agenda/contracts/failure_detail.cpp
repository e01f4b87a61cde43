#include "agenda/contracts/failure_detail.hpp"

#include <algorithm>

namespace kova {

namespace {

constexpr std::string_view LineBreak = "\r\n";
constexpr std::string_view Opening = "\r\nDetalhe técnico: ";

/// In one line, without the breaks and blanks at its end.
std::string OneLine(std::string_view text)
{
    std::string line;
    for (const char c : text) {
        const bool isBreak = c == '\r' || c == '\n';
        if (!isBreak || (!line.empty() && line.back() != ' '))
            line += isBreak ? ' ' : c;
    }
    return line.substr(0, line.find_last_not_of(' ') + 1);
}

} // namespace

std::string WithDetail(std::string text, std::string_view detail)
{
    const std::string line = OneLine(detail);
    return line.empty() ? text : text.append(Opening).append(line);
}

std::string WithoutDetail(std::string_view text)
{
    std::string rest;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t detail = std::min(text.find(Opening, begin), text.size());
        rest += text.substr(begin, detail - begin);
        begin = detail == text.size()
            ? detail
            : std::min(text.find(LineBreak, detail + LineBreak.size()), text.size());
    }
    return rest;
}

} // namespace kova
