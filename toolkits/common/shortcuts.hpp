#pragma once

#include "agenda/contracts/value.hpp"

#include <string_view>
#include <vector>

namespace kova::toolkit {

class FormModel;
class WidgetCore;

/// The key that opens the help of a form.
inline constexpr std::string_view HelpKey = "F1";

/// A key as its name on the screen, such as "Alt+←" for "Alt+Left".
Text KeyName(std::string_view shortcut);

/// What a control is for, as help and assistive tools say it: its accessible name, else the tool tip of its
/// design, else its caption.
Text PurposeOf(const WidgetCore& widget);

/// A line of a form's help: a key and what it does.
struct KeyHelp {
    Text key;
    Text purpose;
};

/// The keys of a form's controls in the order of the design, then those that every form has. Empty where no
/// control has a key.
std::vector<KeyHelp> KeysOf(const FormModel& form);

} // namespace kova::toolkit
