#pragma once

#include "host/options.hpp"

namespace kova::host {

/// Where the window goes.
enum class Outlet { Window, PictureOnPurpose, PictureForWantOfDisplay };

/// One session with the agenda, from the components to the last window: opens the database, shows the
/// day's list in the main window, and runs until the user closes it, or draws it and prints the day.
/// Answers the exit status. Throws Failure or std::exception, with a text for the user, where the session
/// cannot begin. The toolkit's application must exist.
int RunSession(const Options& options, Outlet outlet);

} // namespace kova::host
