#pragma once

#include "agenda/contracts/value.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace kova {

/// Number of characters (code points) of a UTF-8 text; a malformed byte counts as one.
std::size_t Length(std::string_view text);
/// The first `count` characters, or the whole text where it has fewer.
Text Left(std::string_view text, std::size_t count);
/// The last `count` characters, or the whole text where it has fewer.
Text Right(std::string_view text, std::size_t count);
/// Without the blanks at both ends; tabs and line breaks stay.
Text Trim(std::string_view text);
/// Upper and lower case for ASCII and the accented Latin letters.
Text UpperCase(std::string_view text);
Text LowerCase(std::string_view text);
/// Every occurrence of `what` replaced; nothing changes where `what` is empty.
Text Replace(std::string_view text, std::string_view what, std::string_view with);

/// The leading number of a text, read with a decimal point, blanks skipped; 0 if it has none. Fails with
/// 6 where the number is too large for a Double.
Double Val(std::string_view text);
/// Whether the whole text, blanks around it allowed, is a number with decimal comma or point.
bool IsNumeric(std::string_view text);
/// Shortest decimal text that reads back as the same number, with `mark` before the decimals; from a
/// magnitude of 1e15 on with an exponent.
Text TextOf(Double number, char mark = ',');

/// Rounds to the nearest whole number, halves to the even one. Fails with 6 outside the range.
Integer RoundToInteger(Double number);
Long RoundToLong(Double number);
/// 16-bit arithmetic: fails with 6 instead of wrapping.
Integer Checked(Long number);

} // namespace kova
