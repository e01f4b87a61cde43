#pragma once

#include "agenda/contracts/value.hpp"

#include <functional>
#include <string_view>

namespace kova::toolkit {

/// A control that somebody may want to use: the names of its form and of itself, and its caption as it stands
/// now.
struct GuardedControl {
    std::string_view form, control;
    const Text& caption;
};

/// Answers why the user may not use a control, as a sentence for him; "" where he may. One that he may not
/// looks disabled, says why under the mouse, takes no focus, and does nothing whatever presses it. What code
/// reads and writes of it, Enabled too, is as without a guard.
using Guard = std::function<Text(const GuardedControl&)>;

} // namespace kova::toolkit
