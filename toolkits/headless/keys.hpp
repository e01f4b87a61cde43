#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kova::headless {

/// A key or a chord by name, as scripts write it: "Escape", "Ctrl+S", "PageDown", or one character.
struct KeyPress {
    /// In the names of designs: "Esc", "PgDown", "Del", "Return", "Backtab"; a letter is upper case. "" where
    /// the key is a character.
    std::string name;
    bool ctrl = false;
    bool alt = false;
    bool shift = false;
    /// What it types; 0 where it types nothing.
    char32_t character = 0;

    /// "Ctrl+S", as designs write it.
    std::string Chord() const;
};

/// Nothing where the word names no key.
std::optional<KeyPress> ReadKey(std::string_view word);

} // namespace kova::headless
