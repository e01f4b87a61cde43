#include "toolkits/common/shortcuts.hpp"

#include <array>
#include <utility>

namespace kova::toolkit {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 4> NamesOnScreen{{
    {"Left", "←"},
    {"Right", "→"},
    {"Ins", "Insert"},
    {"Del", "Delete"},
}};

} // namespace

Text KeyName(std::string_view shortcut)
{
    const std::size_t plus = shortcut.rfind('+');
    const std::size_t start = plus == std::string_view::npos ? 0 : plus + 1;
    const std::string_view key = shortcut.substr(start);
    for (const auto& [name, shown] : NamesOnScreen)
        if (key == name)
            return Text(shortcut.substr(0, start)) + Text(shown);
    return Text(shortcut);
}

} // namespace kova::toolkit
