#pragma once

#include <string>
#include <string_view>

namespace kova::family {

/// Lower case without accents, as texts are kept for searching and ordering: "José Antônio" becomes
/// "jose antonio". Characters outside the Latin letters stay as they are.
std::string FoldText(std::string_view text);

/// Only the digits of a document number, where the text is one: digits with blanks, points, dashes and
/// slashes between them. Empty where it holds anything else, or no digit.
std::string DigitsOf(std::string_view text);

/// The folded text as a pattern that finds it inside a longer one, every character taken as it stands.
/// The escape character of the pattern is '!'.
std::string ContainsPattern(std::string_view foldedText);

} // namespace kova::family
