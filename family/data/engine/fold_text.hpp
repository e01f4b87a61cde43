#pragma once

#include <string>
#include <string_view>

namespace kova::family {

/// Lower case without accents, as texts are kept for searching and ordering: "José Antônio" becomes
/// "jose antonio". What is another form of a plain character becomes it: ordinals, full width, typographic
/// apostrophes, dashes and blanks; "D’Ávila nº 1º" becomes "d'avila no 1o". All other characters, and bytes
/// that are none, stay as they are. A change of it needs a step of the schema that folds the kept texts anew.
std::string FoldText(std::string_view text);

/// Only the digits of a document number, where the text is one: digits with blanks, points, dashes and
/// slashes between them. Empty where it holds anything else, or no digit.
std::string DigitsOf(std::string_view text);

/// A document number without its punctuation, in upper case: digits, as DigitsOf has them, or the fourteen
/// places of a company's number, the first twelve of which may be letters. Empty where the text has not that
/// form.
std::string DocumentOf(std::string_view text);

/// The folded text as a pattern that finds it inside a longer one, every character taken as it stands.
/// The escape character of the pattern is '!'.
std::string ContainsPattern(std::string_view foldedText);

} // namespace kova::family
