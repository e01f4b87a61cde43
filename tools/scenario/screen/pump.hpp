#pragma once

#include <QObject>

#include <exception>
#include <functional>
#include <memory>
#include <vector>

namespace kova::scenario {

/// Gives the event loop that runs its next act whenever it is idle. Loops lie one inside the other: the
/// innermost one acts, and none while an act of its own is still on the stack.
class Pump : public QObject {
public:
    /// What the innermost loop does when it is idle.
    using Act = std::function<void()>;

    Pump();

    /// While it lives, that act is the innermost loop's.
    class Turn {
    public:
        Turn(Pump& pump, Act act);
        ~Turn();
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

    private:
        Pump& pump_;
    };

    /// Acts until `act` answers false. What an act throws comes out here.
    void Run(const std::function<bool()>& act);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Taker {
        Act act;
        bool isBusy = false;
    };

    std::vector<std::shared_ptr<Taker>> takers_;
    std::exception_ptr thrown_;
    std::function<void()> leave_;
};

} // namespace kova::scenario
