#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The characters inside a UTF-8 text. A byte that begins no well-formed sequence stands for itself.
namespace kova::utf8 {

/// Bytes of the character at `at`, which must lie inside the text; 1 for a malformed byte.
std::size_t SequenceLength(std::string_view text, std::size_t at);
/// The character of the `length` bytes at `at`, as SequenceLength has measured them.
char32_t Decode(std::string_view text, std::size_t at, std::size_t length);
void Append(std::string& text, char32_t character);
/// The text with the replacement character in the place of each malformed byte.
std::string WellFormed(std::string_view text);

/// One letter in the other case: ASCII, Latin-1 Supplement and Latin Extended-A. What has no single
/// counterpart stays as it is.
char32_t ToUpper(char32_t character);
char32_t ToLower(char32_t character);

} // namespace kova::utf8
