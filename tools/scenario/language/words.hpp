#pragma once

#include "agenda/contracts/value.hpp"

#include <stdexcept>
#include <string>

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
