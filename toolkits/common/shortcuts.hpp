#pragma once

#include "agenda/contracts/value.hpp"

#include <string_view>

namespace kova::toolkit {

/// The key that opens the help of a form.
inline constexpr std::string_view HelpKey = "F1";

/// The keys that lead to the first and to the last page of a form whose grid has a bar of pages.
inline constexpr std::string_view FirstPageKey = "Ctrl+Home";
inline constexpr std::string_view LastPageKey = "Ctrl+End";

/// A key as its name on the screen, such as "Alt+←" for "Alt+Left".
Text KeyName(std::string_view shortcut);

/// A line of a form's help: a key and what it does.
struct KeyHelp {
    Text key;
    Text purpose;
};

} // namespace kova::toolkit
