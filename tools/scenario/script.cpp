#include "tools/scenario/script.hpp"

#include "tools/scenario/line_reader.hpp"
#include "tools/scenario/script_tables.hpp"

#include <algorithm>
#include <charconv>

namespace kova::scenario {

namespace {

/// Reads a script and the set-ups that it uses into one.
class ScriptReader {
public:
    explicit ScriptReader(const SetupReader& setups) : setups_(setups) { }

    /// `file` is a set-up's name, or empty for the script itself.
    void Read(std::string_view text, const std::string& file)
    {
        for (ScriptLines lines{LinesOf(text), file}; lines.at < lines.lines.size();) {
            Statement statement = ParseStatement(lines.lines[lines.at], lines.Here());
            ++lines.at;
            if (statement.verb == "use")
                Use(statement);
            else if (statement.verb == "records")
                Keep(statement, ParseRecords(lines, statement));
            else if (statement.verb == "appointments")
                Keep(statement, ParseAppointments(lines, statement));
            else if (!statement.verb.empty())
                script_.statements.push_back(std::move(statement));
        }
    }

    Script Take() { return std::move(script_); }

private:
    void Use(const Statement& statement)
    {
        statement.ExpectAtMost(1);
        const std::string file = statement.Word(0) + ".setup";
        if (std::find(open_.begin(), open_.end(), file) != open_.end())
            throw ScriptError(statement.line, "a preparação '" + file + "' usa a si mesma");
        const auto text = setups_ ? setups_(file) : std::nullopt;
        if (!text)
            throw ScriptError(statement.line,
                              "a preparação '" + file
                                  + "' não está na pasta do roteiro nem nas pastas acima dela");
        open_.push_back(file);
        Read(*text, file);
        open_.pop_back();
    }

    /// A set-up's table gives way to one of the same name that follows it elsewhere.
    void Keep(const Statement& head, RecordTable table)
    {
        const std::string& name = head.Word(0);
        const auto former = origins_.find(name);
        if (former != origins_.end() && former->second == head.line.file)
            throw ScriptError(head.line, "a tabela '" + name + "' já existe");
        origins_[name] = head.line.file;
        script_.tables[name] = std::move(table);
    }

    const SetupReader& setups_;
    Script script_;
    /// Set-ups that are being read, the innermost last.
    std::vector<std::string> open_;
    /// The file in which each table stands.
    std::map<std::string, std::string> origins_;
};

} // namespace

ScriptError::ScriptError(const ScriptLine& line, const std::string& what)
    : std::runtime_error((line.file.empty() ? "linha " : line.file + ", linha ") + std::to_string(line.number)
                         + ": " + what)
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

Script ParseScript(std::string_view text, const SetupReader& setups)
{
    ScriptReader reader(setups);
    reader.Read(text, "");
    return reader.Take();
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
