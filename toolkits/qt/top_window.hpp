#pragma once

#include <QPointer>

class QScreen;
class QWidget;

namespace kova::qt {

/// The host's main window, where it has named one.
class TopWindow {
public:
    void Register(QWidget* window);
    /// The window over which another one opens: the active one, else the host's. May be null.
    QWidget* Below(const QWidget* except) const;
    /// The screen that the host's window is on; without one, the first.
    QScreen* Screen() const;

private:
    QPointer<QWidget> window_;
};

} // namespace kova::qt
