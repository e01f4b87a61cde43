#pragma once

#include "agenda/contracts/value.hpp"

#include <string_view>
#include <vector>

namespace kova::toolkit {

class FormModel;
class WidgetCore;

/// The key that opens the help of a form.
inline constexpr std::string_view HelpKey = "F1";

/// The keys that lead to the first and to the last page of a form whose grid has a bar of pages.
inline constexpr std::string_view FirstPageKey = "Ctrl+Home";
inline constexpr std::string_view LastPageKey = "Ctrl+End";

/// A key as its name on the screen, such as "Alt+←" for "Alt+Left".
Text KeyName(std::string_view shortcut);

/// What a control is for, as help and assistive tools say it: the caption that code has given it, else its
/// accessible name, its tool tip, the caption of its design.
Text PurposeOf(const WidgetCore& widget);

/// A line of a form's help: a key and what it does.
struct KeyHelp {
    Text key;
    Text purpose;
};

/// What can be pressed here and now: the keys of the controls that take input in the order of the design,
/// then those of the rows and of the form. Empty where only Tab would be left.
std::vector<KeyHelp> KeysOf(const FormModel& form);

} // namespace kova::toolkit
