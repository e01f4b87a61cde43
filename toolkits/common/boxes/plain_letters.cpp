#include "toolkits/common/boxes/plain_letters.hpp"

#include "agenda/contracts/utf8.hpp"
#include "toolkits/common/boxes/text_edit.hpp"

#include <array>

namespace kova::toolkit {

namespace {

struct Family {
    char32_t plain;
    std::u32string_view accented;
};

constexpr std::array<Family, 8> Families{{{U'a', U"áàâãäå"},
                                          {U'e', U"éèêë"},
                                          {U'i', U"íìîï"},
                                          {U'o', U"óòôõö"},
                                          {U'u', U"úùûü"},
                                          {U'c', U"ç"},
                                          {U'n', U"ñ"},
                                          {U'y', U"ýÿ"}}};

} // namespace

char32_t PlainLetter(char32_t character)
{
    const char32_t lower = utf8::ToLower(character);
    for (const Family& family : Families) {
        if (family.accented.find(lower) != std::u32string_view::npos)
            return family.plain;
    }
    return lower;
}

std::u32string PlainLetters(std::string_view text)
{
    std::u32string letters = ToCharacters(text);
    for (char32_t& letter : letters)
        letter = PlainLetter(letter);
    return letters;
}

} // namespace kova::toolkit
