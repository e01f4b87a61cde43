#pragma once

#include "agenda/contracts/platform.hpp"
#include "tools/hand/places.hpp"

#include <QString>
#include <Qt>

#include <string>

class QListWidget;
class QMenu;
class QMessageBox;

namespace kova::hand {

/// A person's hand: the mouse and the keys as the window system delivers them, to a window, which finds the
/// widget itself. After each event the application handles what is pending, as it does while a person
/// reaches for the next key. An act may run event loops of its own, of a modal form for instance, and comes
/// back when they have ended.
///
/// Acts at a Spot answer "" where they were done, or why a person could not do them (see WhyNot); nothing
/// was sent then. There is one mouse and one keyboard: all hands of the process share them.
class Hand {
public:
    std::string MoveTo(const Spot& spot);
    /// Moves out of all windows, of which none hears.
    static void PassOn();
    /// Moves there and presses; far enough in time from the last press to be no double click.
    std::string Press(const Spot& spot, Qt::MouseButton button = Qt::LeftButton);
    /// Lets the button go where the mouse is.
    void Release(Qt::MouseButton button = Qt::LeftButton);
    std::string Click(const Spot& spot, Qt::MouseButton button = Qt::LeftButton);
    /// As a finger taps: pressed and let go without a move over the place before.
    std::string Tap(const Spot& spot);
    std::string DoubleClick(const Spot& spot);
    std::string Drag(const Spot& from, const Spot& to);
    /// Turns the wheel by that many notches; a part of one is a fine wheel's.
    std::string Wheel(const Spot& spot, double notches);
    /// Scrolls what lies around the widget by the wheel until the place is on show; "" once it is.
    std::string Reveal(const Spot& spot);

    /// A key or a chord such as "Ctrl+S" or "PageDown", or one character. It goes to the window that has the
    /// keyboard. False where there is none, or the name is no key's.
    bool Key(const std::string& name);
    bool Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Character by character, each to the window that has the keyboard then.
    void Type(const std::string& text);
    /// The close button of a window's frame.
    void CloseWindow(QWidget& window);

    // Windows that come up over the others.

    static QMessageBox* OpenBox();
    static QMenu* OpenMenu();
    /// The open list of a combo.
    static QListWidget* OpenList();
    /// Clicks the button of that answer; a refusal where the box does not offer it.
    std::string Answer(QMessageBox& box, Reply reply);
    /// Clicks the entry of that text.
    std::string Pick(QMenu& menu, const QString& entry);
    /// Clicks a row, scrolled into view by the wheel where it is not.
    std::string Pick(QListWidget& list, int row);
    /// As RowOf, with the grid scrolled by the wheel until the row is on show, as its first one where that is
    /// possible.
    Spot RevealRow(QWidget& grid, Long row);

    // The events themselves, whatever the window makes of them: places are in the window.

    static void MoveAt(QWindow& window, const QPoint& place);
    static void PressAt(QWindow& window, const QPoint& place, Qt::MouseButton button);
    static void ReleaseAt(QWindow& window, const QPoint& place, Qt::MouseButton button);
    /// Press and release, far enough in time from the last press to be no double click.
    static void ClickAt(QWindow& window, const QPoint& place, Qt::MouseButton button = Qt::LeftButton);
    /// A press and a release of which the window hears without a move before.
    static void TapAt(QWindow& window, const QPoint& place);
    static void WheelAt(QWindow& window, const QPoint& place, double notches);
    /// The window that a key reaches: the open list or menu, else the one with the keyboard. On a desktop the
    /// window manager gives the keyboard back when a dialog goes; where there is none, the innermost modal
    /// window or the application's own is made active here. May be null.
    static QWindow* WindowOfKeys();
};

} // namespace kova::hand
