#include "family/business/clean_text.hpp"

#include "agenda/contracts/text.hpp"
#include "agenda/contracts/utf8.hpp"

namespace kova::family {

namespace {

/// Line and paragraph separators and the control characters, the end mark of a text among them.
bool IsControl(char32_t character)
{
    return character <= 0x1F || (character >= 0x7F && character <= 0x9F) || character == 0x2028
        || character == 0x2029;
}

/// The no-break space and the wide ones come with text that is copied from a page.
bool IsBlank(char32_t character)
{
    return character == 0xA0 || character == 0x202F || character == 0x3000
        || (character >= 0x2000 && character <= 0x200A);
}

Text WithPlainBlanks(std::string_view typed)
{
    Text plain;
    plain.reserve(typed.size());
    bool isAfterReturn = false;
    for (std::size_t at = 0; at < typed.size();) {
        const std::size_t length = utf8::SequenceLength(typed, at);
        const bool malformed = length == 1 && static_cast<unsigned char>(typed[at]) >= 0x80;
        const char32_t character = malformed ? 0xFFFD : utf8::Decode(typed, at, length);
        // The two characters of one line break are one blank.
        const bool ofSameBreak = character == '\n' && isAfterReturn;
        isAfterReturn = character == '\r';
        if (IsControl(character) || IsBlank(character))
            plain.append(ofSameBreak ? "" : " ");
        else
            utf8::Append(plain, character);
        at += length;
    }
    return plain;
}

} // namespace

Text CleanText(std::string_view typed, std::size_t width)
{
    return Trim(Left(Trim(WithPlainBlanks(typed)), width));
}

} // namespace kova::family
