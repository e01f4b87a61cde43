#pragma once

#include <string>

namespace kova::host {

/// Tells the user why the program cannot go on: on the standard error output, and in a window where there
/// is a display.
void TellFailure(const std::string& text);

} // namespace kova::host
