#include "family/csv/encoding.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/csv/csv_reader.hpp"

namespace kova::family::csv {

namespace {

constexpr char32_t WindowsCharacters[] = {
    0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
    0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178,
};
static_assert(std::size(WindowsCharacters) == 0xA0 - 0x80);

} // namespace

std::string NameOf(Encoding encoding) { return encoding == Encoding::Utf8 ? "UTF-8" : "Latin-1"; }

Utf8Reading ReadAsUtf8(std::string_view text)
{
    Utf8Reading reading;
    long long line = 1;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8::SequenceLength(text, at);
        if (length > 1)
            reading.isLikely = true;
        else if (static_cast<unsigned char>(text[at]) >= 0x80 && !reading.badLine)
            reading.badLine = line;
        if (EndsLine(text, at))
            ++line;
        at += length;
    }
    return reading;
}

std::string Utf8FromLatin1(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) {
        const char32_t code = static_cast<unsigned char>(byte);
        utf8::Append(text, code >= 0x80 && code < 0xA0 ? WindowsCharacters[code - 0x80] : code);
    }
    return text;
}

std::optional<std::string> Latin1FromUtf8(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8::SequenceLength(text, at);
        const char32_t code = utf8::Decode(text, at, length);
        if (code > 0xFF || (code >= 0x80 && code < 0xA0))
            return std::nullopt;
        bytes += static_cast<char>(code);
        at += length;
    }
    return bytes;
}

} // namespace kova::family::csv
