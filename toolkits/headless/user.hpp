#pragma once

#include "toolkits/common/user/user.hpp"

namespace kova::headless {

struct KeyPress;

/// What a person without a screen does: what everybody can do by the names of forms and controls, and keys
/// where the keyboard is.
class User : public toolkit::User {
public:
    using toolkit::User::User;

    /// Presses a key in the active form, at the control that has the focus. Answers as the others do.
    std::string Key(const KeyPress& key);
};

} // namespace kova::headless
