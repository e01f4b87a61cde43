#pragma once

#include "host/options.hpp"

namespace kova::host {

/// Runs the application to its end: in a window, or drawn into a picture where the options ask for one or
/// there is no display. Answers the exit status: 0, or 1 where the agenda could not be opened, which was
/// told then. Throws BadArguments where the options do not go with the shop.
int RunApplication(char* programName, const Options& options);

} // namespace kova::host
