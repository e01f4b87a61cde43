#pragma once

#include "tools/scenario/language/words.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kova::scenario {

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

/// Cuts one line into words. Throws ScriptError.
Statement ParseStatement(std::string_view line, const ScriptLine& place);

} // namespace kova::scenario
