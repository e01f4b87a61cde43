#include "agenda/contracts/utf8.hpp"

namespace kova::utf8 {

namespace {

unsigned char ByteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

bool IsContinuation(std::string_view text, std::size_t at)
{
    return at < text.size() && (ByteAt(text, at) & 0xC0) == 0x80;
}

std::size_t AnnouncedLength(unsigned char lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 1;
}

/// Whether a decoded character needs that many bytes and is one that a text may hold.
bool IsProper(char32_t character, std::size_t length)
{
    if (length == 3)
        return character >= 0x800 && (character < 0xD800 || character > 0xDFFF);
    if (length == 4)
        return character >= 0x10000 && character <= 0x10FFFF;
    return true;
}

/// Latin Extended-A holds its letters in pairs of capital and small letter. In these two runs the
/// capital has the odd number, elsewhere the even one.
bool CapitalIsOdd(char32_t character)
{
    return (character >= 0x139 && character <= 0x148) || (character >= 0x179 && character <= 0x17E);
}

bool IsPaired(char32_t character)
{
    const bool inBlock = character >= 0x100 && character <= 0x17E;
    return inBlock && character != 0x130 && character != 0x131 && character != 0x138 && character != 0x149
        && character != 0x178;
}

bool IsPairedCapital(char32_t character)
{
    return IsPaired(character) && (character % 2 == 1) == CapitalIsOdd(character);
}

bool IsLatin1Small(char32_t c) { return c >= 0xE0 && c <= 0xFE && c != 0xF7; }
bool IsLatin1Capital(char32_t c) { return c >= 0xC0 && c <= 0xDE && c != 0xD7; }

} // namespace

std::size_t SequenceLength(std::string_view text, std::size_t at)
{
    const std::size_t length = AnnouncedLength(ByteAt(text, at));
    for (std::size_t next = 1; next < length; ++next)
        if (!IsContinuation(text, at + next))
            return 1;
    return IsProper(Decode(text, at, length), length) ? length : 1;
}

char32_t Decode(std::string_view text, std::size_t at, std::size_t length)
{
    static constexpr unsigned char leadBits[] = {0, 0xFF, 0x1F, 0x0F, 0x07};
    char32_t character = ByteAt(text, at) & leadBits[length];
    for (std::size_t next = 1; next < length; ++next)
        character = (character << 6) | (ByteAt(text, at + next) & 0x3F);
    return character;
}

void Append(std::string& text, char32_t character)
{
    const auto tail = [character](int shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += tail(6);
        text += tail(0);
    } else {
        text += static_cast<char>(0xF0 | (character >> 18));
        text += tail(12);
        text += tail(6);
        text += tail(0);
    }
}

std::string WellFormed(std::string_view text)
{
    constexpr char32_t replacement = 0xFFFD;
    std::string formed;
    formed.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = SequenceLength(text, at);
        if (length == 1 && ByteAt(text, at) >= 0x80)
            Append(formed, replacement);
        else
            formed += text.substr(at, length);
        at += length;
    }
    return formed;
}

char32_t ToUpper(char32_t character)
{
    if ((character >= 'a' && character <= 'z') || IsLatin1Small(character))
        return character - 0x20;
    if (IsPaired(character) && !IsPairedCapital(character))
        return character - 1;
    switch (character) {
    case 0xFF: return 0x178;
    case 0x131: return 'I';
    case 0x17F: return 'S';
    default: return character;
    }
}

char32_t ToLower(char32_t character)
{
    if ((character >= 'A' && character <= 'Z') || IsLatin1Capital(character))
        return character + 0x20;
    if (IsPairedCapital(character))
        return character + 1;
    switch (character) {
    case 0x130: return 'i';
    case 0x178: return 0xFF;
    default: return character;
    }
}

} // namespace kova::utf8
