#pragma once

#include <functional>

class QWidget;

namespace kova::host {

/// Runs the event loop until the window, as it stands, has been painted to its last widget, then prints
/// "desenhado" on the standard output.
void AwaitFirstPaint(QWidget& window);

/// Calls back from the event loop, once, after the window has been painted. Both must live until then.
void AfterFirstPaint(QWidget& window, std::function<void()> callback);

} // namespace kova::host
