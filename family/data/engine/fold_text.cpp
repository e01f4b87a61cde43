#include "family/data/engine/fold_text.hpp"

#include <utf8proc.h>

#include <array>

namespace kova::family {

namespace {

/// What the library does to each character: takes compatible forms (ordinals, full width) and accents apart,
/// drops the marks and what has no width, writes small letters and plain quotes, dashes and blanks.
constexpr int Folding = UTF8PROC_COMPAT | UTF8PROC_DECOMPOSE | UTF8PROC_STRIPMARK | UTF8PROC_CASEFOLD
    | UTF8PROC_LUMP | UTF8PROC_IGNORE;

/// Room for the longest that becomes of one character.
using Decomposed = std::array<utf8proc_int32_t, 32>;

/// What Brazilian keyboards offer for an apostrophe: the library takes one for an accent above a blank and
/// leaves the other.
bool IsAccentAlone(utf8proc_int32_t character) { return character == U'´' || character == U'`'; }

/// Letters with a stroke and such are letters of their own for the library, but nobody types them to find
/// one.
utf8proc_int32_t BaseLetter(utf8proc_int32_t letter)
{
    switch (letter) {
    case U'đ': return 'd';
    case U'ħ': return 'h';
    case U'ı': return 'i';
    case U'ĸ': return 'k';
    case U'ł': return 'l';
    case U'ŋ': return 'n';
    case U'ø': return 'o';
    case U'ŧ': return 't';
    default: return letter;
    }
}

void Append(std::string& text, utf8proc_int32_t character)
{
    std::array<utf8proc_uint8_t, 4> bytes{};
    const utf8proc_ssize_t length = utf8proc_encode_char(character, bytes.data());
    text.append(bytes.begin(), bytes.begin() + length);
}

void AppendDecomposed(std::string& folded, utf8proc_int32_t character)
{
    Decomposed parts;
    int boundary = 0;
    const utf8proc_ssize_t count = utf8proc_decompose_char(
        character, parts.data(), parts.size(), static_cast<utf8proc_option_t>(Folding), &boundary);
    for (utf8proc_ssize_t at = 0; at < count; ++at)
        Append(folded, BaseLetter(parts[static_cast<std::size_t>(at)]));
}

char LowerAscii(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
}

void AppendFolded(std::string& folded, utf8proc_int32_t character)
{
    if (IsAccentAlone(character))
        folded += '\'';
    else if (character < 0x80) // Most of them: not worth a look into the library's tables.
        folded += LowerAscii(static_cast<char>(character));
    else
        AppendDecomposed(folded, character);
}

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// What stands between the digits of a document number.
bool IsPunctuation(char letter) { return std::string_view(" .-/").find(letter) != std::string_view::npos; }

} // namespace

std::string FoldText(std::string_view text)
{
    std::string folded;
    folded.reserve(text.size());
    const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
    for (std::size_t at = 0; at < text.size();) {
        utf8proc_int32_t character = 0;
        const utf8proc_ssize_t length =
            utf8proc_iterate(bytes + at, static_cast<utf8proc_ssize_t>(text.size() - at), &character);
        if (length > 0)
            AppendFolded(folded, character);
        else
            folded += text[at]; // A byte that belongs to no character.
        at += length > 0 ? static_cast<std::size_t>(length) : 1;
    }
    return folded;
}

std::string DigitsOf(std::string_view text)
{
    std::string digits;
    for (const char letter : text) {
        if (IsDigit(letter))
            digits += letter;
        else if (!IsPunctuation(letter))
            return {};
    }
    return digits;
}

std::string DocumentOf(std::string_view text)
{
    if (std::string digits = DigitsOf(text); !digits.empty())
        return digits;
    std::string places;
    for (char letter : text) {
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
        if (IsDigit(letter) || (letter >= 'A' && letter <= 'Z'))
            places += letter;
        else if (!IsPunctuation(letter))
            return {};
    }
    constexpr std::size_t Places = 14;
    const bool isNumber =
        places.size() == Places && IsDigit(places[Places - 2]) && IsDigit(places[Places - 1]);
    return isNumber ? places : std::string();
}

std::string ContainsPattern(std::string_view foldedText)
{
    std::string pattern = "%";
    for (const char letter : foldedText) {
        if (letter == '%' || letter == '_' || letter == '!')
            pattern += '!';
        pattern += letter;
    }
    return pattern + '%';
}

} // namespace kova::family
