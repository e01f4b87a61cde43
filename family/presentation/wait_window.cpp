#include "family/presentation/wait_window.hpp"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

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
    setStyleSheet(QStringLiteral("background: white; color: #494949;"));
    AddText(text);
    PlaceInTheMiddle();
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
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(MarginX, MarginY, MarginX, MarginY);
    layout->addWidget(label);
}

void WaitWindow::PlaceInTheMiddle()
{
    adjustSize();
    const QWidget* active = QApplication::activeWindow();
    const QScreen* screen = QGuiApplication::primaryScreen();
    QRect room(QPoint(), size());
    if (active)
        room = active->frameGeometry();
    else if (screen)
        room = screen->availableGeometry();
    move(room.center() - rect().center());
}

} // namespace kova::family
