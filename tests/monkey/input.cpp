#include "tests/monkey/input.hpp"

#include "tests/monkey/screen.hpp"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

namespace kova::monkey {

namespace {

constexpr int MillisecondsBetween = 30;
constexpr int MillisecondsOfRest = 900;

/// Whether a modal window keeps the user out of that one.
bool IsShutOut(const QWidget& top)
{
    const QWidget* modal = QApplication::activeModalWidget();
    return modal && modal != &top && !modal->isAncestorOf(&top);
}

} // namespace

QWindow* Input::Under() const
{
    QWidget* popup = QApplication::activePopupWidget();
    if (popup)
        return popup->windowHandle();
    for (QWidget* top : {QApplication::activeModalWidget(), MainWindow()}) {
        if (top && top->isVisible() && top->geometry().contains(place_))
            return top->windowHandle();
    }
    return nullptr;
}

void Input::Send(QWindow* window, Qt::MouseButton button, int type)
{
    now_ += MillisecondsBetween;
    if (window)
        qt_handleMouseEvent(window, window->mapFromGlobal(place_), place_, down_, button,
                            static_cast<QEvent::Type>(type), Qt::NoModifier, now_);
}

void Input::MoveTo(const QPoint& place)
{
    place_ = place;
    Send(grabber_ ? grabber_.data() : Under(), Qt::NoButton, QEvent::MouseMove);
}

void Input::Press(Qt::MouseButton button)
{
    down_.setFlag(button);
    grabber_ = Under();
    Send(grabber_, button, QEvent::MouseButtonPress);
}

void Input::Release(Qt::MouseButton button)
{
    down_.setFlag(button, false);
    QWindow* window = grabber_ ? grabber_.data() : Under();
    grabber_ = nullptr;
    Send(window, button, QEvent::MouseButtonRelease);
}

void Input::Turn(int delta)
{
    QWindow* window = Under();
    const QWidget* top = window ? QWidget::find(window->winId()) : nullptr;
    if (!top || IsShutOut(*top))
        return;
    QWheelEvent turn(window->mapFromGlobal(place_), place_, QPoint(), QPoint(0, delta), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &turn);
}

void Input::Strike(int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        const QWidget* front = Front();
        if (front && front->windowHandle())
            qt_handleKeyEvent(front->windowHandle(), type, key, modifiers, text);
    }
}

void Input::Rest() { now_ += MillisecondsOfRest; }

} // namespace kova::monkey
