#include "toolkits/headless/text_measure.hpp"

#include "toolkits/common/boxes/text_edit.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace kova::headless {

namespace {

constexpr Twips TwipsPerPixel = 15;
constexpr Twips TwipsPerPoint = 20;
/// Advance of a character that the table does not have, in thousandths of the font's size.
constexpr int UsualAdvance = 556;
constexpr Twips BoldFactor = 1.07F;
constexpr Twips LineFactor = 1.15F;

/// Thousandths of the font's size for the characters from the blank to the tilde.
constexpr std::array<int, 95> Advances{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};

/// The letters under the accents from U+00C0 to U+00FF; "?" has no plain one.
constexpr std::u32string_view PlainLetters =
    U"AAAAAA?CEEEEIIIIDNOOOOO?OUUUUY??aaaaaa?ceeeeiiiidnooooo?ouuuuy?y";

int AdvanceOf(char32_t character)
{
    if (character >= 0xC0 && character <= 0xFF)
        character = PlainLetters[character - 0xC0];
    const bool known = character >= U' ' && character <= U'~';
    return known ? Advances[character - U' '] : UsualAdvance;
}

Twips RoundUpToPixel(Twips length) { return std::ceil(length / TwipsPerPixel - 0.001F) * TwipsPerPixel; }

Twips WidthOf(std::u32string_view text, const toolkit::Font& font)
{
    Twips units = 0;
    for (const char32_t character : text)
        units += static_cast<Twips>(AdvanceOf(character));
    return units * font.size * TwipsPerPoint / 1000 * (font.bold ? BoldFactor : 1);
}

std::vector<std::u32string> LinesOf(const Text& text)
{
    std::vector<std::u32string> lines(1);
    for (const char32_t character : toolkit::ToCharacters(text)) {
        if (character == U'\n')
            lines.emplace_back();
        else if (character != U'\r')
            lines.back() += character;
    }
    return lines;
}

/// Where the first line of `text` ends: behind the last word that fits, at least one word.
std::size_t FittingLength(std::u32string_view text, const toolkit::Font& font, Twips width)
{
    std::size_t fitting = 0;
    while (fitting < text.size()) {
        const std::size_t blank = std::min(text.find(U' ', fitting + 1), text.size());
        if (fitting > 0 && WidthOf(text.substr(0, blank), font) > width)
            break;
        fitting = blank;
    }
    return fitting;
}

} // namespace

toolkit::Extent TableMeasure::Measure(const Text& text, const toolkit::Font& font, Twips wrapWidth) const
{
    Twips widest = 0;
    int lines = 0;
    for (const std::u32string& line : LinesOf(text)) {
        std::u32string_view rest = line;
        do {
            const std::size_t length = wrapWidth > 0 ? FittingLength(rest, font, wrapWidth) : rest.size();
            widest = std::max(widest, WidthOf(rest.substr(0, length), font));
            rest.remove_prefix(std::min(rest.size(), length));
            rest.remove_prefix(std::min(rest.size(), rest.find_first_not_of(U' ')));
            ++lines;
        } while (!rest.empty());
    }
    const Twips lineHeight = RoundUpToPixel(font.size * TwipsPerPoint * LineFactor);
    return {RoundUpToPixel(widest), lineHeight * static_cast<Twips>(lines)};
}

} // namespace kova::headless
