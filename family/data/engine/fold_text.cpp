#include "family/data/engine/fold_text.hpp"

namespace kova::family {

namespace {

/// Base letters of U+00C0 to U+017F; '*' where a character has none.
constexpr std::string_view BaseLetters = "aaaaaa*ceeeeiiiidnooooo*ouuuuy**aaaaaa*ceeeeiiiidnooooo*ouuuuy*y"
                                         "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiii**jjkkklllllll"
                                         "lllnnnnnnnnnoooooo**rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(BaseLetters.size() == 0x180 - 0xC0);

unsigned ByteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

bool IsTwoByteCharacter(std::string_view text, std::size_t at)
{
    return (ByteAt(text, at) & 0xE0u) == 0xC0u && at + 1 < text.size()
        && (ByteAt(text, at + 1) & 0xC0u) == 0x80u;
}

bool IsCombiningMark(unsigned character) { return character >= 0x300 && character < 0x370; }

void AppendFolded(std::string& folded, std::string_view bytes, unsigned character)
{
    if (IsCombiningMark(character))
        return;
    if (character == 0xDF) {
        folded += "ss";
        return;
    }
    const bool hasBase = character >= 0xC0 && character < 0x180 && BaseLetters[character - 0xC0] != '*';
    if (hasBase)
        folded += BaseLetters[character - 0xC0];
    else
        folded += bytes;
}

char LowerAscii(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
}

} // namespace

std::string FoldText(std::string_view text)
{
    std::string folded;
    folded.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!IsTwoByteCharacter(text, at)) {
            folded += LowerAscii(text[at]);
            continue;
        }
        const unsigned character = (ByteAt(text, at) & 0x1Fu) << 6u | (ByteAt(text, at + 1) & 0x3Fu);
        AppendFolded(folded, text.substr(at, 2), character);
        ++at;
    }
    return folded;
}

std::string DigitsOf(std::string_view text)
{
    std::string digits;
    for (const char letter : text) {
        if (letter >= '0' && letter <= '9')
            digits += letter;
        else if (std::string_view(" .-/").find(letter) == std::string_view::npos)
            return {};
    }
    return digits;
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
