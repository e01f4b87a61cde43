#pragma once

#include "agenda/contracts/value.hpp"

#include <string>
#include <string_view>

namespace kova::toolkit {

/// Characters between `anchor` and `caret`, counted from 0; equal where nothing is selected.
struct TextSelection {
    std::size_t anchor = 0;
    std::size_t caret = 0;

    friend bool operator==(const TextSelection&, const TextSelection&) = default;
};

/// A line of characters with a caret: data without events.
class TextEdit {
public:
    const std::u32string& Characters() const { return characters_; }
    const Text& AsText() const { return text_; }
    TextSelection Selection() const { return selection_; }
    std::size_t First() const;
    std::size_t Last() const;
    bool HasSelection() const { return selection_.anchor != selection_.caret; }

    /// Replaces all; the caret stands at the end.
    void Put(std::string_view text);
    void Put(std::u32string characters, std::size_t caret);
    /// Positions beyond the end are cut to it.
    void Select(std::size_t anchor, std::size_t caret);
    /// Puts a character in place of the selection.
    void Insert(char32_t character);
    /// Removes the selection, or one character before the caret (behind it if `forward`). False where
    /// there was none.
    bool Erase(bool forward);

private:
    void Refresh();

    std::u32string characters_;
    Text text_;
    TextSelection selection_;
};

std::u32string ToCharacters(std::string_view text);
Text ToText(std::u32string_view characters);

} // namespace kova::toolkit
