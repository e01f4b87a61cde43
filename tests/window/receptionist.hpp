#pragma once

#include "toolkits/qt/form.hpp"
#include "tools/hand/hand.hpp"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>
#include <string>

namespace kova::window_test {

/// A person with a keyboard and a mouse: does one thing after the other, each as soon as the application
/// takes input again, also inside the event loops of dialogs. The mouse goes to where a widget stands on the
/// screen, and presses there. What cannot be done within half a minute ends the process with a word of what
/// it was.
class Receptionist : public QObject {
public:
    Receptionist();

    /// Keys such as "F4", "Down" or "Ctrl+2", for whatever has the focus.
    Receptionist& Presses(const std::string& keys);
    Receptionist& Types(const std::string& text);
    /// Goes on once a combo's list is open, and presses a key in it.
    Receptionist& InList(const std::string& keys);
    /// Opens the list of the combo with the focus by key and takes its next row.
    Receptionist& TakesNextRow() { return Presses("Down").InList("Down").InList("Return"); }
    /// Presses the mouse in the middle of a control.
    Receptionist& Clicks(const std::string& form, const std::string& control);
    /// Presses what stands at the right end of a box: magnifier, cross, calendar.
    Receptionist& ClicksEnd(const std::string& form, const std::string& box);
    /// Opens a combo by mouse and presses the row of that number, from 0.
    Receptionist& Chooses(const std::string& form, const std::string& combo, int row);
    /// Opens a box's calendar by mouse and presses a day of the month that it shows.
    Receptionist& PicksDay(const std::string& form, const std::string& box, int day);
    /// Moves the mouse to a row of a grid, from 1, and leaves it there.
    Receptionist& Hovers(const std::string& form, const std::string& grid, int row);
    Receptionist& ClicksRow(const std::string& form, const std::string& grid, int row);
    /// Two presses at the same place on the screen in quick succession, whatever stands there at the second.
    Receptionist& DoubleClicksRow(const std::string& form, const std::string& grid, int row);
    /// Goes on once a form of that name is in front and takes input.
    Receptionist& WaitsFor(const std::string& form);
    /// Goes on once a message box is open, notes its text and presses that key in it.
    Receptionist& Answers(const std::string& key);
    /// Goes on once a message box is open, notes its text and presses that answer's button.
    Receptionist& AnswersByMouse(Reply reply);
    /// Goes on once a pop-up menu is open, and presses the entry of that text.
    Receptionist& PicksByMouse(const std::string& entry);
    /// Goes on once a pop-up menu is open, and picks the entry of that text by keys.
    Receptionist& Picks(const std::string& entry);
    /// Goes on once a window of that name that is no form (a preview, a file dialog) is in front, and presses
    /// keys in it.
    Receptionist& InWindow(const std::string& window, const std::string& keys);
    /// Runs once the form in front takes input.
    Receptionist& Looks(std::function<void()> look);
    /// Goes on once `ready` holds; `what` says for what that was.
    Receptionist& WaitsUntil(const std::string& what, std::function<bool()> ready);
    /// Acts at once, whether or not a form takes input.
    Receptionist& Does(const std::string& what, std::function<void()> act);
    /// Closes the application's window.
    void Leaves();

    /// Texts of the boxes that were answered, in their order.
    const std::vector<std::string>& Boxes() const { return boxes_; }
    /// The form in front; null where another window is.
    static toolkit::FormModel* FormInFront();
    /// The form of that name that is on show; null where there is none.
    static toolkit::FormModel* FormOnShow(const std::string& name);
    /// The name of the control that has the focus in the form in front.
    static std::string Focused();
    /// The control of that name in a form that is on show. Fails with 438 where there is none.
    static Widget& Control(const std::string& form, const std::string& name);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Step {
        std::string what;
        std::function<bool()> ready;
        std::function<void()> act;
    };
    Receptionist& Then(Step step);
    /// Acts by mouse at a place that is found when the time has come; waits until a person gets at it.
    Receptionist& ThenAt(const std::string& what, const std::string& form, std::function<hand::Spot()> place,
                         std::function<std::string(const hand::Spot&)> act);
    void Arm();
    /// Whether the form in front takes input and has done with the last key. A search may let other events
    /// happen while it runs; a key in a dialog that the last key has opened is another form's.
    bool FrontIsIdle() const;

    std::deque<Step> steps_;
    hand::Hand hand_;
    QElapsedTimer waiting_;
    bool typing_ = false;
    /// The forms that had the keys not returned from yet, the innermost last.
    std::vector<const toolkit::FormModel*> handling_;
    std::vector<std::string> boxes_;
    QPointer<QMessageBox> answered_;
};

} // namespace kova::window_test
