#pragma once

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWindow>
#include <Qt>

namespace kova::monkey {

/// Mouse and keyboard of the one user, as the display server delivers them: to windows, by places on the
/// screen. A press and its release go to the same window, a press beside everything to the open pop-up.
class Input {
public:
    void MoveTo(const QPoint& place);
    void Press(Qt::MouseButton button);
    void Release(Qt::MouseButton button);
    /// Eighths of a degree; 120 is a notch away from the user.
    void Turn(int delta);
    /// Press and release, for the window in front.
    void Strike(int key, Qt::KeyboardModifiers modifiers, const QString& text);
    /// Time passes: the next press makes no double press with the last one.
    void Rest();

private:
    QWindow* Under() const;
    void Send(QWindow* window, Qt::MouseButton button, int type);

    QPoint place_;
    Qt::MouseButtons down_;
    /// Gets everything while a button is down.
    QPointer<QWindow> grabber_;
    int now_ = 1'000'000;
};

} // namespace kova::monkey
