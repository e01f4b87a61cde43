#pragma once

namespace kova::system {

/// Whether a window can be shown: an X server or, for a program that speaks its language, a Wayland
/// compositor, which the environment names and which answers. A system that is never without windows says so.
bool DisplayAnswers(bool speaksWayland);

} // namespace kova::system
