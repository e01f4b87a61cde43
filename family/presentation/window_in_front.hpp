#pragma once

class QWidget;

namespace kova::family {

/// The window that a new one belongs in front of, also while the user is in another program: the open modal
/// window, else the active one, else one that is on the screen. Null where there is none.
QWidget* WindowInFront();

} // namespace kova::family
