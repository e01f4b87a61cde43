#include "tools/scenario/script.hpp"

#include <cctype>
#include <charconv>
#include <limits>

namespace kova::scenario {

namespace {

/// Walks along one line.
class LineReader {
public:
    LineReader(std::string_view line, int number) : line_(line), number_(number) { }

    /// Skips blanks; true where something other than a comment follows.
    bool More()
    {
        while (at_ < line_.size() && std::isspace(static_cast<unsigned char>(line_[at_])))
            ++at_;
        return at_ < line_.size() && line_[at_] != '#';
    }

    bool TakeIf(char character)
    {
        if (at_ >= line_.size() || line_[at_] != character)
            return false;
        ++at_;
        return true;
    }

    Token Next(std::string_view endings = " \t\r")
    {
        return line_[at_] == '"' ? Text(endings) : Bare(endings);
    }

private:
    Token Bare(std::string_view endings)
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

    Token Text(std::string_view endings)
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

    char Escaped()
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

    void RequireEnding(std::string_view endings) const
    {
        if (at_ < line_.size() && endings.find(line_[at_]) == std::string_view::npos)
            throw ScriptError(number_, "falta um espaço depois do texto entre aspas");
    }

    std::string_view line_;
    int number_;
    std::size_t at_ = 0;
};

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

std::vector<Value> ParseRow(std::string_view line, int number)
{
    std::vector<Value> row;
    LineReader reader(line, number);
    while (reader.More()) {
        Token token = reader.Next(",");
        if (!token.quoted)
            token.text.erase(token.text.find_last_not_of(" \t") + 1);
        row.push_back(ParseValue(token, number));
        if (reader.More() && !reader.TakeIf(','))
            throw ScriptError(number, "falta uma vírgula entre os valores");
    }
    return row;
}

bool IsEnd(std::string_view line, int number)
{
    LineReader reader(line, number);
    return reader.More() && line.find("end") != std::string_view::npos && reader.Next().text == "end";
}

/// Reads the rows of a table up to `end`; `at` is the line behind `records` and moves behind `end`.
RecordTable ParseTable(const std::vector<std::string_view>& lines, std::size_t& at, const Statement& head)
{
    RecordTable table;
    for (std::size_t word = 1; word < head.words.size(); ++word)
        table.fields.push_back(head.Word(word));
    for (; at < lines.size(); ++at) {
        const int number = static_cast<int>(at) + 1;
        if (IsEnd(lines[at], number)) {
            ++at;
            return table;
        }
        if (!LineReader(lines[at], number).More())
            continue;
        table.rows.push_back(ParseRow(lines[at], number));
        if (table.rows.back().size() != table.fields.size())
            throw ScriptError(number,
                              "a linha tem " + std::to_string(table.rows.back().size())
                                  + " valores e a tabela tem " + std::to_string(table.fields.size())
                                  + " campos");
    }
    throw ScriptError(head.line, "falta o 'end' da tabela");
}

} // namespace

ScriptError::ScriptError(int line, const std::string& what)
    : std::runtime_error("linha " + std::to_string(line) + ": " + what), line_(line)
{
}

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

Statement ParseStatement(std::string_view line, int number)
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

Script ParseScript(std::string_view text)
{
    Script script;
    const auto lines = LinesOf(text);
    for (std::size_t at = 0; at < lines.size();) {
        Statement statement = ParseStatement(lines[at], static_cast<int>(at) + 1);
        ++at;
        if (statement.verb.empty())
            continue;
        if (statement.verb == "records") {
            const std::string name = statement.Word(0);
            if (script.tables.contains(name))
                throw ScriptError(statement.line, "a tabela '" + name + "' já existe");
            script.tables[name] = ParseTable(lines, at, statement);
        } else {
            script.statements.push_back(std::move(statement));
        }
    }
    return script;
}

Value ParseValue(const Token& token, int line)
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

} // namespace kova::scenario
