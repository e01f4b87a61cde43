#include "tools/scenario/language/words.hpp"

#include <charconv>

namespace kova::scenario {

ScriptError::ScriptError(const ScriptLine& line, const std::string& what)
    : std::runtime_error((line.file.empty() ? "linha " : line.file + ", linha ") + std::to_string(line.number)
                         + ": " + what)
{
}

Value ParseValue(const Token& token, const ScriptLine& line)
{
    if (token.quoted)
        return token.text;
    if (token.text == "null")
        return Null{};
    if (token.text == "True" || token.text == "False")
        return token.text == "True";
    const char* begin = token.text.data();
    const char* end = begin + token.text.size();
    Long whole = 0;
    if (const auto read = std::from_chars(begin, end, whole); read.ec == std::errc() && read.ptr == end)
        return whole;
    double number = 0;
    if (const auto read = std::from_chars(begin, end, number); read.ec == std::errc() && read.ptr == end)
        return number;
    throw ScriptError(line, "'" + token.text + "' não é um valor: texto entre aspas, número ou null");
}

NamedValue ParseNamedValue(const Token& token, const ScriptLine& line)
{
    const std::size_t sign = token.quoted ? std::string::npos : token.text.find('=');
    if (sign == std::string::npos || sign == 0)
        throw ScriptError(line, "'" + token.text + "' não é MEMBRO=VALOR");
    const std::string value = token.text.substr(sign + 1);
    const bool quoted = value.starts_with('"');
    return {token.text.substr(0, sign), ParseValue({quoted ? value.substr(1) : value, quoted}, line)};
}

} // namespace kova::scenario
