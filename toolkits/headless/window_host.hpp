#pragma once

#include "toolkits/common/form_window.hpp"

#include <optional>

namespace kova::toolkit {
class FormModel;
}

namespace kova::headless {

class Driver;

/// What the windows in memory ask of whoever holds the containers.
class WindowHost {
public:
    virtual ~WindowHost() = default;

    /// Takes a form into a container, answers the inner size; nothing where there is none.
    virtual std::optional<toolkit::InnerSize> JoinContainer(Long handle, toolkit::FormModel& form) = 0;
    /// The form's window is gone, with the handles of its panels.
    virtual void Forget(Long handle, toolkit::FormModel& form) = 0;
    /// Who plays the user now.
    virtual Driver& GetDriver() = 0;
};

} // namespace kova::headless
