#pragma once

class QWidget;

namespace kova::host {

/// Runs the event loop until the window, as it stands, has been painted to its last widget, then prints
/// "desenhado" on the standard output.
void AwaitFirstPaint(QWidget& window);

} // namespace kova::host
