#include "toolkits/qt/top_window.hpp"

#include <QApplication>
#include <QScreen>
#include <QWidget>

namespace kova::qt {

void TopWindow::Register(QWidget* window) { window_ = window; }

QWidget* TopWindow::Below(const QWidget* except) const
{
    QWidget* active = QApplication::activeWindow();
    if (active && active != except && active->isVisible())
        return active;
    // The user is in another program.
    QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != except && modal->isVisible())
        return modal;
    return window_ ? window_->window() : nullptr;
}

QScreen* TopWindow::Screen() const { return window_ ? window_->screen() : QGuiApplication::primaryScreen(); }

} // namespace kova::qt
