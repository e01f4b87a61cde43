#pragma once

#include "tools/scenario/screen.hpp"

#include <memory>

namespace kova::scenario {

/// The screen toolkit on Qt. Makes the process's application where there is none, offscreen where there is no
/// display.
std::unique_ptr<Screen> MakeQtScreen();

} // namespace kova::scenario
