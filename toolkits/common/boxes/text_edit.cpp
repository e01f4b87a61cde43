#include "toolkits/common/boxes/text_edit.hpp"

#include "agenda/contracts/utf8.hpp"

#include <algorithm>
#include <utility>

namespace kova::toolkit {

std::u32string ToCharacters(std::string_view text)
{
    std::u32string characters;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8::SequenceLength(text, at);
        characters += utf8::Decode(text, at, length);
        at += length;
    }
    return characters;
}

Text ToText(std::u32string_view characters)
{
    Text text;
    for (const char32_t character : characters)
        utf8::Append(text, character);
    return text;
}

std::size_t TextEdit::First() const { return std::min(selection_.anchor, selection_.caret); }
std::size_t TextEdit::Last() const { return std::max(selection_.anchor, selection_.caret); }

void TextEdit::Put(std::string_view text)
{
    characters_ = ToCharacters(text);
    text_ = text;
    selection_ = {characters_.size(), characters_.size()};
}

void TextEdit::Put(std::u32string characters, std::size_t caret)
{
    characters_ = std::move(characters);
    Select(caret, caret);
    Refresh();
}

void TextEdit::Select(std::size_t anchor, std::size_t caret)
{
    selection_ = {std::min(anchor, characters_.size()), std::min(caret, characters_.size())};
}

void TextEdit::Insert(char32_t character)
{
    const std::size_t first = First();
    characters_.replace(first, Last() - first, 1, character);
    selection_ = {first + 1, first + 1};
    Refresh();
}

bool TextEdit::Erase(bool forward)
{
    std::size_t first = First();
    std::size_t last = Last();
    if (!HasSelection() && forward)
        last = std::min(last + 1, characters_.size());
    else if (!HasSelection() && first > 0)
        --first;
    if (first == last)
        return false;
    characters_.erase(first, last - first);
    selection_ = {first, first};
    Refresh();
    return true;
}

void TextEdit::Refresh() { text_ = ToText(characters_); }

} // namespace kova::toolkit
