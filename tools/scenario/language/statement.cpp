#include "tools/scenario/language/statement.hpp"

#include "tools/scenario/language/line_reader.hpp"

#include <charconv>

namespace kova::scenario {

const std::string& Statement::Word(std::size_t at) const
{
    if (!Has(at))
        throw ScriptError(line, "'" + verb + "' pede mais palavras");
    if (words[at].quoted)
        throw ScriptError(line, "'" + words[at].text + "' não deve estar entre aspas");
    return words[at].text;
}

const std::string& Statement::QuotedText(std::size_t at) const
{
    if (!Has(at))
        throw ScriptError(line, "'" + verb + "' pede mais palavras");
    if (!words[at].quoted)
        throw ScriptError(line, "'" + words[at].text + "' deve estar entre aspas");
    return words[at].text;
}

long Statement::Number(std::size_t at) const
{
    const std::string& word = Word(at);
    long number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size())
        throw ScriptError(line, "'" + word + "' não é um número inteiro");
    return number;
}

double Statement::Decimal(std::size_t at) const
{
    const std::string& word = Word(at);
    double number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size())
        throw ScriptError(line, "'" + word + "' não é um número");
    return number;
}

void Statement::ExpectAtMost(std::size_t count) const
{
    if (words.size() > count)
        throw ScriptError(line, "'" + verb + "' não aceita '" + words[count].text + "'");
}

Statement Statement::Behind() const
{
    Statement inner;
    inner.line = line;
    inner.verb = Word(0);
    inner.words.assign(words.begin() + 1, words.end());
    return inner;
}

Statement ParseStatement(std::string_view line, const ScriptLine& number)
{
    Statement statement;
    statement.line = number;
    LineReader reader(line, number);
    while (reader.More())
        statement.words.push_back(reader.Next());
    if (!statement.words.empty()) {
        if (statement.words.front().quoted)
            throw ScriptError(number, "a linha deve começar por um comando");
        statement.verb = statement.words.front().text;
        statement.words.erase(statement.words.begin());
    }
    return statement;
}

} // namespace kova::scenario
