#include "tools/scenario/language/line_reader.hpp"

#include <cctype>

namespace kova::scenario {

bool LineReader::More()
{
    while (at_ < line_.size() && std::isspace(static_cast<unsigned char>(line_[at_])))
        ++at_;
    return at_ < line_.size() && line_[at_] != '#';
}

bool LineReader::TakeIf(char character)
{
    if (at_ >= line_.size() || line_[at_] != character)
        return false;
    ++at_;
    return true;
}

Token LineReader::Next(std::string_view endings) { return line_[at_] == '"' ? Text(endings) : Bare(endings); }

Token LineReader::Bare(std::string_view endings)
{
    const std::size_t begin = at_;
    while (at_ < line_.size() && endings.find(line_[at_]) == std::string_view::npos) {
        // A value may be quoted behind a name: MEMBER="text".
        if (line_[at_] == '"') {
            const std::string name(line_.substr(begin, at_ - begin));
            const Token value = Text(endings);
            return {name + '"' + value.text, false};
        }
        ++at_;
    }
    return {std::string(line_.substr(begin, at_ - begin)), false};
}

Token LineReader::Text(std::string_view endings)
{
    Token token{{}, true};
    for (++at_; at_ < line_.size(); ++at_) {
        const char character = line_[at_];
        if (character == '"') {
            ++at_;
            RequireEnding(endings);
            return token;
        }
        token.text += character == '\\' ? Escaped() : character;
    }
    throw ScriptError(number_, "o texto entre aspas não termina");
}

char LineReader::Escaped()
{
    if (++at_ < line_.size()) {
        switch (line_[at_]) {
        case '"': return '"';
        case '\\': return '\\';
        case 'r': return '\r';
        case 'n': return '\n';
        default: break;
        }
    }
    throw ScriptError(number_, R"(depois de \ vem um de " \ r n)");
}

void LineReader::RequireEnding(std::string_view endings) const
{
    if (at_ < line_.size() && endings.find(line_[at_]) == std::string_view::npos)
        throw ScriptError(number_, "falta um espaço depois do texto entre aspas");
}

std::vector<std::string_view> LinesOf(std::string_view text)
{
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(ByteOrderMark))
        text.remove_prefix(ByteOrderMark.size());
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

} // namespace kova::scenario
