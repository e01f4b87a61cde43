#pragma once

#include "agenda/contracts/value.hpp"
#include "tools/scenario/scripted_components.hpp"

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kova::scenario {

/// The script itself is wrong. The text begins with the line's number.
class ScriptError : public std::runtime_error {
public:
    ScriptError(int line, const std::string& what);
    int Line() const { return line_; }

private:
    int line_;
};

/// One word of a statement: a bare word, or a text that stood in double quotes.
struct Token {
    std::string text;
    bool quoted = false;
};

/// One line of a script, cut into its words. The first word is the verb.
struct Statement {
    int line = 0;
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

/// Reads a whole script. Comments and empty lines are dropped, `records` blocks become tables. Throws
/// ScriptError.
Script ParseScript(std::string_view text);

/// Cuts one line into words. Throws ScriptError.
Statement ParseStatement(std::string_view line, int number);

/// A value of the language: a text in quotes, null, True, False, a whole number (Long) or one with a
/// point (Double). Throws ScriptError.
Value ParseValue(const Token& token, int line);

} // namespace kova::scenario
