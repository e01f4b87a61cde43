#include "tests/monkey/player.hpp"

#include "tests/monkey/finding.hpp"
#include "tests/monkey/screen.hpp"

#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QTimerEvent>

#include <algorithm>

namespace kova::monkey {

namespace {

constexpr int TurnMilliseconds = 1;
/// An act does not wait longer than that for the last one to end: what is in front may never take input.
constexpr int LongestWaitInTurns = 400;
/// Going home may have to wait for a pause, not for ever.
constexpr int LongestWaitForHomeInTurns = 20'000;
constexpr int MostStepsHome = 60;
/// A button that was struck is down for a moment before it acts, and begins it anew when it is struck again.
constexpr int TurnsForAnAnswer = 500;

QPoint PlaceIn(const QWidget& widget, int x, int y)
{
    return widget.mapToGlobal(QPoint(widget.width() * x / 1000, widget.height() * y / 1000));
}

/// A desktop gives the keyboard to the window in front. There is none here.
void GiveKeyboardToFront()
{
    QWidget* front = Front();
    if (front && !QApplication::activePopupWidget() && !front->isActiveWindow())
        front->activateWindow();
}

/// The close button of a window that a modal one keeps shut does nothing.
bool MayBeClosed(const QWidget& window)
{
    const QWidget* modal = QApplication::activeModalWidget();
    return !QApplication::activePopupWidget() && (!modal || modal == &window);
}

} // namespace

Player::Player(Source& source, OtherDesk& otherDesk, const Users* users, const std::string& log)
    : source_(source), otherDesk_(otherDesk), users_(users), log_(log)
{
    Arm();
}

void Player::Arm() { startTimer(TurnMilliseconds); }

// The next turn is armed before this one acts, which may run an event loop of its own.
void Player::timerEvent(QTimerEvent* event)
{
    killTimer(event->timerId());
    Arm();
    ++turns_;
    Turn();
}

void Player::Turn()
{
    if (isGone_)
        return;
    rules_.Look();
    StayInThisShop();
    GiveKeyboardToFront();
    if (!strokes_.empty()) {
        const Stroke stroke = std::move(strokes_.front());
        strokes_.pop_front();
        return stroke();
    }
    hasBegun_ = hasBegun_ || MainWindow();
    if (!MainWindow() && !SignInInFront()) {
        isGone_ = hasBegun_;
        return;
    }
    if (goesHome_)
        return StepHome();
    if (leaves_)
        return Leave();
    if (!next_)
        next_ = source_.Next();
    if (!next_) {
        leaves_ = goesHome_ = true;
        return;
    }
    if (MayBegin())
        Begin(*std::exchange(next_, std::nullopt));
}

// The menu leads to other shops, and there is none.
void Player::StayInThisShop()
{
    QWidget* menu = staysInThisShop_ || !MainWindow() ? nullptr : MainWindow()->findChild<QWidget*>("menu");
    if (!menu)
        return;
    menu->setEnabled(false);
    staysInThisShop_ = true;
}

bool Player::MayBegin()
{
    if (!next_->hasty && !IsSettled() && ++waited_ < LongestWaitInTurns)
        return false;
    waited_ = 0;
    return true;
}

void Player::Begin(const Act& act)
{
    log_ << ToLine(act) << std::endl;
    input_.Rest();
    Do(act);
}

void Player::Do(const Act& act)
{
    switch (act.verb) {
    case Verb::Screen:
    case Verb::Users: return;
    case Verb::Press: return PressAt(act, Qt::LeftButton, 1);
    case Verb::DoublePress: return PressAt(act, Qt::LeftButton, 2);
    case Verb::RightPress: return PressAt(act, Qt::RightButton, 1);
    case Verb::Move: return PressAt(act, Qt::NoButton, 0);
    case Verb::Drag: return DragOver(act);
    case Verb::Wheel:
        PressAt(act, Qt::NoButton, 0);
        return Add([this, delta = act.numbers[2]] { input_.Turn(delta); });
    case Verb::Key: return Add([this, keys = act.text] { Strike(keys); });
    case Verb::Type: return TypeText(act.text);
    case Verb::Paste: return Paste(act);
    case Verb::Resize: return Resize(act);
    case Verb::Close: return Close(act.target);
    case Verb::OtherDesk: return otherDesk_.Does(act.text, act.numbers[0]);
    case Verb::GoHome: goesHome_ = true; return;
    }
}

void Player::PressAt(const Act& act, Qt::MouseButton button, int times)
{
    const QWidget* target = Find(act.target);
    if (!target)
        return;
    Add([this, place = PlaceIn(*target, act.numbers[0], act.numbers[1])] { input_.MoveTo(place); });
    for (int i = 0; i < times; ++i) {
        Add([this, button] { input_.Press(button); });
        Add([this, button] { input_.Release(button); });
    }
}

void Player::DragOver(const Act& act)
{
    const QWidget* target = Find(act.target);
    if (!target)
        return;
    const QPoint from = PlaceIn(*target, act.numbers[0], act.numbers[1]);
    const QPoint to = PlaceIn(*target, act.numbers[2], act.numbers[3]);
    Add([this, from] { input_.MoveTo(from); });
    Add([this] { input_.Press(Qt::LeftButton); });
    Add([this, from, to] { input_.MoveTo((from + to) / 2); });
    Add([this, to] { input_.MoveTo(to); });
    Add([this] { input_.Release(Qt::LeftButton); });
}

void Player::Strike(const std::string& keys)
{
    const auto combination =
        QKeySequence::fromString(QString::fromStdString(keys), QKeySequence::PortableText)[0];
    const bool isCharacter = keys.size() == 1 || keys == "Space";
    const QString text = !isCharacter ? QString()
        : keys == "Space"             ? QStringLiteral(" ")
                                      : QString::fromStdString(keys);
    input_.Strike(combination.key(), combination.keyboardModifiers(), text);
}

void Player::TypeText(const std::string& text)
{
    for (const QChar character : QString::fromStdString(text))
        Add([this, character] {
            input_.Strike(character.toUpper().unicode(), Qt::NoModifier, QString(character));
        });
}

void Player::Paste(const Act& act)
{
    QApplication::clipboard()->setText(QString::fromStdString(act.text).repeated(act.numbers[0]));
    Add([this] { Strike("Ctrl+V"); });
}

void Player::Resize(const Act& act)
{
    QWidget* window = Find(act.target);
    if (window && window->isWindow() && MayBeClosed(*window))
        window->resize(QSize(act.numbers[0], act.numbers[1]).expandedTo(window->minimumSize()));
}

void Player::Close(const std::string& target)
{
    Add([target] {
        QWidget* window = Find(target);
        if (window && window->isWindow() && MayBeClosed(*window))
            window->close();
    });
}

// Escape first of all, from another area its key; a question that comes again is answered with yes.
void Player::StepHome()
{
    const toolkit::FormModel* form = FormInFront();
    if (!IsSettled()) {
        if (++waited_ > LongestWaitForHomeInTurns)
            EndWithFinding("no input taken", WhatIsInFront());
        return;
    }
    waited_ = 0;
    if (form && form->Design().name == "frmLista") {
        goesHome_ = false;
        stepsHome_ = 0;
        return Rules::LookAtHome();
    }
    if (++stepsHome_ > MostStepsHome)
        EndWithFinding("locked out", WhatIsInFront());
    if (SignInInFront())
        return SignIn();
    Strike(IsInOtherArea() ? "Alt+1" : BoxInFront() && stepsHome_ % 3 == 0 ? "S" : "Esc");
}

// Each in turn: whoever has mistyped has to wait.
void Player::SignIn()
{
    const std::vector<Entry> all = users_ ? users_->WhoEnter() : std::vector<Entry>();
    if (all.empty())
        EndWithFinding("nobody can enter", WhatIsInFront());
    const Entry& one = all[static_cast<std::size_t>(stepsHome_) % all.size()];
    for (const auto& [box, text] : {std::pair("nome", one.name), {"segredo", one.password}}) {
        PressAt({.verb = Verb::Press, .target = box, .numbers = {250, 500}}, Qt::LeftButton, 1);
        Add([this] { Strike("Ctrl+A"); });
        TypeText(text);
    }
    Add([this] { Strike("Return"); });
}

// What was typed in another area and not saved is discarded.
void Player::Leave()
{
    if (++waited_ > LongestWaitForHomeInTurns)
        EndWithFinding("the window does not close", WhatIsInFront());
    if (waited_ == 1 && MainWindow())
        MainWindow()->close();
    else if (BoxInFront() && waited_ % TurnsForAnAnswer == 0)
        Strike("D");
}

} // namespace kova::monkey
