#include "toolkits/headless/keys.hpp"

#include "toolkits/common/boxes/text_edit.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace kova::headless {

namespace {

using Pair = std::pair<std::string_view, std::string_view>;

/// Names that scripts may write, and those of designs.
constexpr std::array<Pair, 24> Names{{
    {"Escape", "Esc"},
    {"Esc", "Esc"},
    {"Enter", "Return"},
    {"Return", "Return"},
    {"Tab", "Tab"},
    {"Backtab", "Backtab"},
    {"Backspace", "Backspace"},
    {"Delete", "Del"},
    {"Del", "Del"},
    {"Insert", "Ins"},
    {"Ins", "Ins"},
    {"Space", "Space"},
    {"Home", "Home"},
    {"End", "End"},
    {"PageUp", "PgUp"},
    {"PgUp", "PgUp"},
    {"PageDown", "PgDown"},
    {"PgDown", "PgDown"},
    {"Up", "Up"},
    {"Down", "Down"},
    {"Left", "Left"},
    {"Right", "Right"},
    {"Plus", "+"},
    {"Minus", "-"},
}};

bool TakePrefix(std::string_view& word, std::string_view prefix)
{
    // "+" alone is a key too.
    if (!word.starts_with(prefix) || word.size() == prefix.size())
        return false;
    word.remove_prefix(prefix.size());
    return true;
}

bool IsFunctionKey(std::string_view word)
{
    const bool digits = word.size() >= 2 && word.size() <= 3 && word[0] == 'F'
        && std::all_of(word.begin() + 1, word.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!digits || word[1] == '0')
        return false;
    return std::stoi(std::string(word.substr(1))) <= 12;
}

char32_t UpperOf(char32_t character)
{
    return character >= U'a' && character <= U'z' ? character - U'a' + U'A' : character;
}

} // namespace

std::string KeyPress::Chord() const
{
    return std::string(ctrl ? "Ctrl+" : "") + (alt ? "Alt+" : "") + (shift ? "Shift+" : "") + name;
}

std::optional<KeyPress> ReadKey(std::string_view word)
{
    KeyPress key;
    for (bool found = true; found;) {
        found = false;
        if (!key.ctrl && TakePrefix(word, "Ctrl+"))
            key.ctrl = found = true;
        else if (!key.alt && TakePrefix(word, "Alt+"))
            key.alt = found = true;
        else if (!key.shift && TakePrefix(word, "Shift+"))
            key.shift = found = true;
    }
    const auto known =
        std::find_if(Names.begin(), Names.end(), [&](const Pair& pair) { return pair.first == word; });
    if (known != Names.end() || IsFunctionKey(word)) {
        key.name = known != Names.end() ? known->second : word;
        if (key.name == "Tab" && key.shift)
            key.name = "Backtab";
        return key;
    }
    const std::u32string characters = toolkit::ToCharacters(word);
    if (characters.size() != 1 || characters[0] < U' ')
        return std::nullopt;
    if (key.ctrl || key.alt)
        key.name = toolkit::ToText(std::u32string(1, UpperOf(characters[0])));
    else
        key.character = key.shift ? UpperOf(characters[0]) : characters[0];
    return key;
}

} // namespace kova::headless
