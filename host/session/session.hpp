#pragma once

#include "host/options.hpp"

#include <optional>
#include <string>

namespace kova::host {

/// Where the window goes.
enum class Outlet { Window, PictureOnPurpose, PictureForWantOfDisplay };

/// How a session has ended.
struct SessionEnd {
    /// The exit status.
    int status = 0;
    /// Where the shop lies that the user has turned to; nothing where the window was closed.
    std::optional<std::string> next;
};

/// One session with the agenda, from the components to the last window: opens the database, shows the
/// day's list in the main window, and runs until the user closes it, or draws it and prints the day.
/// Throws Failure or std::exception, with a text for the user, where the session cannot begin. The toolkit's
/// application must exist.
SessionEnd RunSession(const Options& options, Outlet outlet);

} // namespace kova::host
