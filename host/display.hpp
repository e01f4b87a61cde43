#pragma once

namespace kova::host {

/// Whether a window can be shown: nobody has told the screen toolkit to draw into memory, and there is a
/// display that answers (system/display.hpp). A screen toolkit that finds none ends the process, so this is
/// asked before it starts.
bool HasDisplay();

/// Makes the screen toolkit draw into memory. To be called before it starts.
void UseNoDisplay();

} // namespace kova::host
