#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kova::family::csv {

enum class Encoding { Utf8, Latin1 };

/// As messages call it.
std::string NameOf(Encoding encoding);

/// What the bytes of a text tell of it, taken for UTF-8.
struct Utf8Reading {
    /// It holds a character of more than one byte, which hardly comes about by chance.
    bool isLikely = false;
    /// The first line that is not well-formed, from 1; nothing where the whole text is.
    std::optional<long long> badLine;
};
Utf8Reading ReadAsUtf8(std::string_view text);

/// The bytes 80 to 9F are read as Windows writes them, which calls its own encoding Latin-1: quotes, dashes
/// and the euro sign.
std::string Utf8FromLatin1(std::string_view bytes);

/// Nothing where a character does not exist in Latin-1.
std::optional<std::string> Latin1FromUtf8(std::string_view text);

/// What spreadsheets put before a text in UTF-8 to tell its encoding.
inline constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

} // namespace kova::family::csv
