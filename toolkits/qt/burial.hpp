#pragma once

class QWidget;

namespace kova::toolkit {
class ToolkitModel;
}

/// The end of widgets that may have a frame of their own on the stack: a list whose row was clicked, a form
/// that its own button unloads. A loop that a handler runs must not destroy them.
namespace kova::qt {

/// Takes the widget off the screen at once and destroys it as soon as no event is on the stack.
void Bury(QWidget& widget);

/// The toolkit that knows whether an event is on the stack; null once it is gone.
void BurialsWaitFor(const toolkit::ToolkitModel* toolkit);

/// Destroys, from the event loop, what waits for it. The toolkit calls it whenever the outermost event has
/// ended.
void ScheduleBurials();

} // namespace kova::qt
