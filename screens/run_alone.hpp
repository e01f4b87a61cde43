#pragma once

class QDialog;

namespace kova::screens {

/// Shows a dialog before or between the application's windows, and waits until it is answered. Its own exec()
/// would return at once after a window has ended the application's event loop.
void RunAlone(QDialog& dialog);

} // namespace kova::screens
