#pragma once

#include "host/first_start/chosen_shop.hpp"
#include "host/options.hpp"

#include <optional>

namespace kova::host {

/// Where the window goes.
enum class Outlet { Window, PictureOnPurpose, PictureForWantOfDisplay };

/// How a session has ended.
struct SessionEnd {
    /// The exit status.
    int status = 0;
    /// The shop that the user has turned to; nothing where the window was closed.
    std::optional<ChosenShop> next;
};

/// One session with the agenda, from the components to the last window: opens the database, shows the
/// day's list in the main window, and runs until the user closes it, or draws it and prints the day.
/// Throws Failure or std::exception, with a text for the user, where the session cannot begin. The toolkit's
/// application must exist.
SessionEnd RunSession(const Options& options, Outlet outlet);

} // namespace kova::host
