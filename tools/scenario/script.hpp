#pragma once

#include "agenda/contracts/value.hpp"
#include "tools/scenario/scripted_components.hpp"

#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kova::scenario {

/// A line's place: its number, from 1, and the set-up file in which it stands, empty for the script itself.
struct ScriptLine {
    ScriptLine(int at = 0, std::string of = {}) : number(at), file(std::move(of)) { }
    friend bool operator==(const ScriptLine&, const ScriptLine&) = default;

    int number;
    std::string file;
};

/// The script itself is wrong. The text begins with the line's place.
class ScriptError : public std::runtime_error {
public:
    ScriptError(const ScriptLine& line, const std::string& what);
};

/// One word of a statement: a bare word, or a text that stood in double quotes.
struct Token {
    std::string text;
    bool quoted = false;
};

/// One line of a script, cut into its words. The first word is the verb.
struct Statement {
    ScriptLine line;
    std::string verb;
    std::vector<Token> words;

    /// The word at a position behind the verb; a script error where there are fewer, or where it is
    /// quoted or bare against expectation.
    const std::string& Word(std::size_t at) const;
    const std::string& QuotedText(std::size_t at) const;
    /// A whole number. A script error where the word is none.
    long Number(std::size_t at) const;
    double Decimal(std::size_t at) const;
    bool Has(std::size_t at) const { return at < words.size(); }
    bool IsQuoted(std::size_t at) const { return Has(at) && words[at].quoted; }
    /// A script error where the statement has more words than that.
    void ExpectAtMost(std::size_t count) const;
    /// The statement that stands behind the verb, for `during-pause`.
    Statement Behind() const;
};

/// A script: its statements in order, and the tables that it names.
struct Script {
    std::vector<Statement> statements;
    std::map<std::string, RecordTable> tables;
};

/// Gives the text of a set-up file, such as "shop.setup", or nothing where there is none.
using SetupReader = std::function<std::optional<std::string>(const std::string& file)>;

/// Reads a whole script. Comments and empty lines are dropped, `records` and `appointments` blocks become
/// tables, `use NAME` stands for the statements of NAME.setup. Throws ScriptError.
Script ParseScript(std::string_view text, const SetupReader& setups = {});

/// Cuts one line into words. Throws ScriptError.
Statement ParseStatement(std::string_view line, const ScriptLine& place);

/// A value of the language: a text in quotes, null, True, False, a whole number (Long) or one with a
/// point (Double). Throws ScriptError.
Value ParseValue(const Token& token, const ScriptLine& line);

/// What MEMBER=VALUE says.
struct NamedValue {
    std::string name;
    Value value;
};

/// Throws ScriptError where the word is no MEMBER=VALUE.
NamedValue ParseNamedValue(const Token& token, const ScriptLine& line);

} // namespace kova::scenario
