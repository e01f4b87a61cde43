#pragma once

#include "toolkits/qt/form.hpp"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>
#include <string>

namespace kova::window_test {

/// A person at the keyboard: does one thing after the other, each as soon as the application takes input
/// again, also inside the event loops of dialogs. What cannot be done within half a minute ends the process
/// with a word of what it was.
class Receptionist : public QObject {
public:
    Receptionist();

    /// Keys such as "F4", "Down" or "Ctrl+2", for whatever has the focus.
    Receptionist& Presses(const std::string& keys);
    Receptionist& Types(const std::string& text);
    /// Goes on once a form of that name is in front and takes input.
    Receptionist& WaitsFor(const std::string& form);
    /// Goes on once a message box is open, notes its text and presses that key in it.
    Receptionist& Answers(const std::string& key);
    /// Goes on once a pop-up menu is open, and picks the entry of that text.
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
    void Arm();
    /// Whether the form in front takes input and has done with the last key. A search may let other events
    /// happen while it runs; a key in a dialog that the last key has opened is another form's.
    bool FrontIsIdle() const;

    std::deque<Step> steps_;
    QElapsedTimer waiting_;
    bool typing_ = false;
    /// The forms that had the keys not returned from yet, the innermost last.
    std::vector<const toolkit::FormModel*> handling_;
    std::vector<std::string> boxes_;
    QPointer<QMessageBox> answered_;
};

} // namespace kova::window_test
