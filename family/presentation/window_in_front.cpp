#include "family/presentation/window_in_front.hpp"

#include <QApplication>
#include <QWidget>

namespace kova::family {

namespace {

/// Whether the user works in it: no menu, no tool tip, no plate.
bool IsWorkedIn(const QWidget& window)
{
    return window.isVisible() && (window.windowType() == Qt::Window || window.windowType() == Qt::Dialog);
}

} // namespace

QWidget* WindowInFront()
{
    for (QWidget* window : {QApplication::activeModalWidget(), QApplication::activeWindow()})
        if (window && IsWorkedIn(*window))
            return window;
    QWidget* found = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (IsWorkedIn(*window) && (!found || window->windowType() == Qt::Window))
            found = window;
    return found;
}

} // namespace kova::family
