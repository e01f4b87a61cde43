#pragma once

#include "tools/scenario/language/words.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kova::scenario {

/// Walks along one line of a script, word by word. A mistake is a ScriptError of that line.
class LineReader {
public:
    LineReader(std::string_view line, ScriptLine number) : line_(line), number_(std::move(number)) { }

    /// Skips blanks; true where something other than a comment follows.
    bool More();
    /// Skips the character and is true where it is the next one.
    bool TakeIf(char character);
    /// The next word, which ends before one of these characters unless it is quoted. Only after More().
    Token Next(std::string_view endings = " \t\r");

private:
    Token Bare(std::string_view endings);
    Token Text(std::string_view endings);
    char Escaped();
    void RequireEnding(std::string_view endings) const;

    std::string_view line_;
    ScriptLine number_;
    std::size_t at_ = 0;
};

/// The lines of a text, without their ends and without a byte order mark.
std::vector<std::string_view> LinesOf(std::string_view text);

} // namespace kova::scenario
