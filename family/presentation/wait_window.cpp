#include "family/presentation/wait_window.hpp"

#include "family/presentation/window_in_front.hpp"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace kova::family {

namespace {

constexpr int MarginX = 36;
constexpr int MarginY = 24;

} // namespace

WaitWindow::WaitWindow(const QString& text) : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setWindowTitle(text);
    setBackgroundRole(QPalette::Base);
    AddText(text);
    PlaceInFront();
    show();
    // The caller works without the event loop: what makes the window appear happens now, and what the user
    // does meanwhile waits.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    repaint();
}

void WaitWindow::AddText(const QString& text)
{
    auto* label = new QLabel(text, this);
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::Text);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(MarginX, MarginY, MarginX, MarginY);
    layout->addWidget(label);
}

// It belongs to the window that it stands before, without being destroyed by it.
void WaitWindow::PlaceInFront()
{
    adjustSize();
    const QWidget* front = WindowInFront();
    const QScreen* screen = QGuiApplication::primaryScreen();
    QRect room(QPoint(), size());
    if (front)
        room = front->frameGeometry();
    else if (screen)
        room = screen->availableGeometry();
    move(room.center() - rect().center());
    winId();
    if (front && front->windowHandle())
        windowHandle()->setTransientParent(front->windowHandle());
}

} // namespace kova::family
