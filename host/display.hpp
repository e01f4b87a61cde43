#pragma once

namespace kova::host {

/// Whether a window can be shown: an X server or a Wayland compositor that the environment names and that
/// answers. A screen toolkit that finds none ends the process, so this is asked before it starts.
bool HasDisplay();

/// Makes the screen toolkit draw into memory. To be called before it starts.
void UseNoDisplay();

} // namespace kova::host
