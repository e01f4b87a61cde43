#include "tests/window/receptionist.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/common/widget_core.hpp"
#include "toolkits/qt/boxes/calendar.hpp"

#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QTest>
#include <QTimerEvent>

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace kova::window_test {

namespace {

constexpr int PollMilliseconds = 2;
constexpr int PatienceMilliseconds = 30'000;
/// What a session takes behind its last step, such as the end of a copy, on a slow computer.
constexpr int LongestEndMilliseconds = 120'000;

qt::FormWidget* FormIn(QWidget* top)
{
    if (auto* form = dynamic_cast<qt::FormWidget*>(top))
        return form;
    for (QWidget* child : top->findChildren<QWidget*>())
        if (auto* form = dynamic_cast<qt::FormWidget*>(child))
            return form;
    return nullptr;
}

/// The window that gets the keys: the innermost modal one, else the application's.
QWidget* TopInFront()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && FormIn(top) && !dynamic_cast<qt::FormWidget*>(top))
            return top;
    return nullptr;
}

/// A desktop gives the keyboard back to the window behind a dialog that closed. There is none here, and
/// without it the letters of the labels lead nowhere.
bool FrontHasKeyboard()
{
    QWidget* top = TopInFront();
    if (!top || QApplication::activePopupWidget() || top->isActiveWindow())
        return true;
    top->activateWindow();
    return top->isActiveWindow();
}

bool TakesInput()
{
    const toolkit::FormModel* form = Receptionist::FormInFront();
    return form != nullptr && form->Refusal().empty() && !form->GetToolkit().IsInsideEvent();
}

void SendKeys(const std::string& keys)
{
    const auto combination =
        QKeySequence::fromString(QString::fromStdString(keys), QKeySequence::PortableText)[0];
    QTest::keyClick(TopInFront()->windowHandle(), combination.key(), combination.keyboardModifiers());
}

void SendText(const std::string& text)
{
    for (const QChar character : QString::fromStdString(text)) {
        const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, TopInFront()->windowHandle(), key, QString(character),
                            Qt::NoModifier);
    }
}

std::string WhatIsInFront()
{
    if (const auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget()))
        return "a box says \"" + box->text().toStdString() + "\"";
    if (QApplication::activePopupWidget())
        return "a menu or list is open";
    const toolkit::FormModel* form = Receptionist::FormInFront();
    if (!form)
        return "no form is in front";
    return form->Design().name + ", focus " + Receptionist::Focused() + " " + form->Refusal();
}

QWidget& ControlOf(const std::string& form, const std::string& control)
{
    QWidget* widget = hand::ControlOnScreen(form, control);
    if (!widget)
        throw Failure(FailureNumber::NoSuchMember);
    return *widget;
}

bool IsInFront(const std::string& form)
{
    const toolkit::FormModel* front = Receptionist::FormInFront();
    return front && front->Design().name == form;
}

/// Where a day stands on the sheet of a month that begins on a Sunday.
QPoint PlaceOfDay(const qt::CalendarPopup& calendar, int day)
{
    constexpr int daysPerWeek = 7;
    constexpr int weeks = 6;
    constexpr QMargins besidesTheDays(10, 10 + 34 + 24, 10, 38 + 10);
    const QRect days = calendar.rect().marginsRemoved(besidesTheDays);
    const QSize cell(days.width() / daysPerWeek, days.height() / weeks);
    const int column = (day - 1) % daysPerWeek;
    const int week = (day - 1) / daysPerWeek;
    return days.topLeft()
        + QPoint(column * cell.width() + cell.width() / 2, week * cell.height() + cell.height() / 2);
}

QMessageBox* OpenBox() { return dynamic_cast<QMessageBox*>(QApplication::activeModalWidget()); }
QMenu* OpenMenu() { return dynamic_cast<QMenu*>(QApplication::activePopupWidget()); }

} // namespace

// The mouse comes from outside: where it rests on the place of its next move, no move would be told.
Receptionist::Receptionist()
{
    hand::Hand::PassOn();
    waiting_.start();
    Arm();
}

Receptionist& Receptionist::Presses(const std::string& keys)
{
    return Then({"press " + keys, [this] { return FrontIsIdle(); },
                 [this, keys] {
                     handling_.push_back(FormInFront());
                     SendKeys(keys);
                     handling_.pop_back();
                 }});
}

Receptionist& Receptionist::Types(const std::string& text)
{
    // Sending a key lets other events happen: nothing else is begun between two characters.
    return Then({"type " + text, [this] { return FrontIsIdle(); },
                 [this, text] {
                     typing_ = true;
                     SendText(text);
                     typing_ = false;
                 }});
}

Receptionist& Receptionist::ThenAt(const std::string& what, const std::string& form,
                                   std::function<hand::Spot()> place,
                                   std::function<std::string(const hand::Spot&)> act)
{
    const auto ready = [this, form, place] {
        return FrontIsIdle() && IsInFront(form) && hand::WhyNot(place()).empty();
    };
    return Then({what, ready, [this, place, act] {
                     handling_.push_back(FormInFront());
                     act(place());
                     handling_.pop_back();
                 }});
}

Receptionist& Receptionist::Clicks(const std::string& form, const std::string& control)
{
    return ThenAt(
        "click on " + form + "." + control, form, [=] { return hand::Spot(&ControlOf(form, control)); },
        [this](const hand::Spot& spot) { return hand_.Click(spot); });
}

Receptionist& Receptionist::ClicksEnd(const std::string& form, const std::string& box)
{
    return ThenAt(
        "click on the end of " + form + "." + box, form,
        [=] { return hand::EndButtonOf(ControlOf(form, box)); },
        [this](const hand::Spot& spot) { return hand_.Click(spot); });
}

Receptionist& Receptionist::Chooses(const std::string& form, const std::string& combo, int row)
{
    Clicks(form, combo);
    return Then({"choose row " + std::to_string(row) + " of " + combo,
                 [] { return hand::Hand::OpenList() != nullptr; },
                 [this, row] { hand_.Pick(*hand::Hand::OpenList(), row); }});
}

Receptionist& Receptionist::InList(const std::string& keys)
{
    return Then({"press " + keys + " in a list", [] { return hand::Hand::OpenList() != nullptr; },
                 [keys] { SendKeys(keys); }});
}

Receptionist& Receptionist::PicksDay(const std::string& form, const std::string& box, int day)
{
    ClicksEnd(form, box);
    const auto calendar = [] { return dynamic_cast<qt::CalendarPopup*>(QApplication::activePopupWidget()); };
    return Then(
        {"pick day " + std::to_string(day), [calendar] { return calendar() != nullptr; },
         [this, calendar, day] { hand_.Click(hand::Spot(calendar(), PlaceOfDay(*calendar(), day))); }});
}

Receptionist& Receptionist::Hovers(const std::string& form, const std::string& grid, int row)
{
    return ThenAt(
        "hover row " + std::to_string(row), form, [=] { return hand::RowOf(ControlOf(form, grid), row); },
        [this](const hand::Spot& spot) { return hand_.MoveTo(spot); });
}

Receptionist& Receptionist::ClicksRow(const std::string& form, const std::string& grid, int row)
{
    return ThenAt(
        "click on row " + std::to_string(row), form, [=] { return hand::RowOf(ControlOf(form, grid), row); },
        [this](const hand::Spot& spot) { return hand_.Click(spot); });
}

Receptionist& Receptionist::DoubleClicksRow(const std::string& form, const std::string& grid, int row)
{
    return ThenAt(
        "double click on row " + std::to_string(row), form,
        [=] { return hand::RowOf(ControlOf(form, grid), row); },
        [this](const hand::Spot& spot) {
            const QPoint onScreen = spot.widget->mapToGlobal(spot.place);
            hand_.Click(spot);
            // The first press may have closed the window.
            if (QWindow* beneath = TopInFront()->windowHandle()) {
                hand::Hand::PressAt(*beneath, beneath->mapFromGlobal(onScreen), Qt::LeftButton);
                hand::Hand::ReleaseAt(*beneath, beneath->mapFromGlobal(onScreen), Qt::LeftButton);
            }
            return std::string();
        });
}

Receptionist& Receptionist::WaitsFor(const std::string& form)
{
    const auto inFront = [this, form] { return FrontIsIdle() && FormInFront()->Design().name == form; };
    return Then({"wait for " + form, inFront, [] {}});
}

Receptionist& Receptionist::Answers(const std::string& key)
{
    // A button pressed by its letter goes down for a moment: the box answered last may still be open.
    return Then({"answer " + key, [this] { return OpenBox() && OpenBox() != answered_; },
                 [this, key] {
                     answered_ = OpenBox();
                     boxes_.push_back(OpenBox()->text().toStdString());
                     SendKeys(key);
                 }});
}

Receptionist& Receptionist::AnswersByMouse(Reply reply)
{
    return Then({"answer by mouse", [this] { return OpenBox() && OpenBox() != answered_; },
                 [this, reply] {
                     answered_ = OpenBox();
                     boxes_.push_back(OpenBox()->text().toStdString());
                     hand_.Answer(*OpenBox(), reply);
                 }});
}

Receptionist& Receptionist::PicksByMouse(const std::string& entry)
{
    return Then({"press the entry " + entry, [] { return OpenMenu() != nullptr; },
                 [this, entry] { hand_.Pick(*OpenMenu(), QString::fromStdString(entry)); }});
}

Receptionist& Receptionist::Picks(const std::string& entry)
{
    return Then({"pick " + entry, [] { return OpenMenu() != nullptr; },
                 [entry] {
                     for (int i = 0; OpenMenu() && i < 10; ++i) {
                         SendKeys("Down");
                         const QAction* active = OpenMenu()->activeAction();
                         if (active && active->text().toStdString() == entry)
                             return SendKeys("Return");
                     }
                 }});
}

Receptionist& Receptionist::InWindow(const std::string& window, const std::string& keys)
{
    const auto inFront = [window] {
        return TopInFront() && TopInFront()->objectName().toStdString() == window;
    };
    return Then({"press " + keys + " in " + window, inFront, [keys] { SendKeys(keys); }});
}

Receptionist& Receptionist::Looks(std::function<void()> look)
{
    return Then({"look", [this] { return FrontIsIdle(); }, std::move(look)});
}

Receptionist& Receptionist::WaitsUntil(const std::string& what, std::function<bool()> ready)
{
    return Then({"wait until " + what, std::move(ready), [] {}});
}

Receptionist& Receptionist::Does(const std::string& what, std::function<void()> act)
{
    return Then({what, [] { return true; }, std::move(act)});
}

void Receptionist::Leaves()
{
    Then({"leave", TakesInput, [] { TopInFront()->close(); }});
}

bool Receptionist::FrontIsIdle() const
{
    const toolkit::FormModel* form = FormInFront();
    const bool handling = std::find(handling_.begin(), handling_.end(), form) != handling_.end();
    return form && form->Refusal().empty() && !handling;
}

toolkit::FormModel* Receptionist::FormInFront()
{
    QWidget* top = TopInFront();
    qt::FormWidget* form = top && !OpenBox() && !OpenMenu() ? FormIn(top) : nullptr;
    return form && form->isVisible() ? &form->Model() : nullptr;
}

std::string Receptionist::Focused()
{
    const toolkit::FormModel* form = FormInFront();
    const toolkit::WidgetCore* widget = form ? form->Focused() : nullptr;
    return widget ? widget->FullName() : "";
}

toolkit::FormModel* Receptionist::FormOnShow(const std::string& name)
{
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* shown = dynamic_cast<qt::FormWidget*>(widget);
        if (shown && shown->isVisible() && shown->Model().Design().name == name)
            return &shown->Model();
    }
    return nullptr;
}

Widget& Receptionist::Control(const std::string& form, const std::string& name)
{
    if (toolkit::FormModel* shown = FormOnShow(form))
        return static_cast<Form&>(*shown).Control(name);
    throw Failure(FailureNumber::NoSuchMember);
}

Receptionist& Receptionist::Then(Step step)
{
    steps_.push_back(std::move(step));
    return *this;
}

void Receptionist::Arm() { startTimer(PollMilliseconds); }

// The next timer is armed before the act, which may run an event loop of its own.
void Receptionist::timerEvent(QTimerEvent* event)
{
    killTimer(event->timerId());
    Arm();
    if (steps_.empty() && waiting_.elapsed() > LongestEndMilliseconds) {
        std::cerr << "nothing is left to be done, but the application has not ended: " << WhatIsInFront()
                  << std::endl;
        std::_Exit(EXIT_FAILURE);
    }
    if (steps_.empty() || typing_)
        return;
    if (!FrontHasKeyboard() || !steps_.front().ready()) {
        if (waiting_.elapsed() < PatienceMilliseconds)
            return;
        std::cerr << "cannot " << steps_.front().what << ": " << WhatIsInFront() << std::endl;
        std::_Exit(EXIT_FAILURE);
    }
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    waiting_.restart();
    step.act();
    waiting_.restart();
}

} // namespace kova::window_test
