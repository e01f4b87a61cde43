#pragma once

#include "tests/monkey/chooser.hpp"
#include "tests/monkey/input.hpp"
#include "tests/monkey/other_desk.hpp"
#include "tests/monkey/rules.hpp"

#include <QObject>

#include <atomic>
#include <deque>
#include <fstream>
#include <functional>

namespace kova::monkey {

/// The user: acts from the application's own event loops, also those of boxes and of pauses, one event in
/// each turn of the loop. An act waits until what is in front takes input, unless it is hasty. When the
/// source has no more acts, the user goes back to the list and closes the application's window.
class Player : public QObject {
public:
    /// Each act is written to `log` before it is done. `users` may be null.
    Player(Source& source, OtherDesk& otherDesk, const Users* users, const std::string& log);

    /// Turns of the event loop so far: a program that counts no more hangs.
    const std::atomic<unsigned>& Turns() const { return turns_; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    using Stroke = std::function<void()>;

    void Arm();
    void Turn();
    void StayInThisShop();
    bool MayBegin();
    void Begin(const Act& act);
    void Do(const Act& act);
    void PressAt(const Act& act, Qt::MouseButton button, int times);
    void DragOver(const Act& act);
    void Strike(const std::string& keys);
    void TypeText(const std::string& text);
    void Paste(const Act& act);
    void Resize(const Act& act);
    void Close(const std::string& target);
    void StepHome();
    void SignIn();
    void Leave();
    void Add(Stroke stroke) { strokes_.push_back(std::move(stroke)); }

    Source& source_;
    OtherDesk& otherDesk_;
    const Users* users_;
    std::ofstream log_;
    Input input_;
    Rules rules_;
    std::deque<Stroke> strokes_;
    std::optional<Act> next_;
    std::atomic<unsigned> turns_ = 0;
    int waited_ = 0;
    int stepsHome_ = 0;
    bool goesHome_ = false;
    bool leaves_ = false;
    bool isGone_ = false;
    /// The window was there.
    bool hasBegun_ = false;
    bool staysInThisShop_ = false;
};

} // namespace kova::monkey
