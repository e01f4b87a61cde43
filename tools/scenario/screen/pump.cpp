#include "tools/scenario/screen/pump.hpp"

#include <QEventLoop>
#include <QTimerEvent>

#include <utility>

namespace kova::scenario {

Pump::Pump() { startTimer(0); }

Pump::Turn::Turn(Pump& pump, Act act) : pump_(pump)
{
    pump_.takers_.push_back(std::make_shared<Taker>(Taker{std::move(act)}));
}

Pump::Turn::~Turn() { pump_.takers_.pop_back(); }

void Pump::Run(const std::function<bool()>& act)
{
    QEventLoop loop;
    leave_ = [&loop] { loop.quit(); };
    {
        const Turn turn(*this, [&] {
            if (!act())
                loop.quit();
        });
        loop.exec();
    }
    leave_ = nullptr;
    if (thrown_)
        std::rethrow_exception(std::exchange(thrown_, nullptr));
}

// A timer of no time comes when nothing else is pending. It is set anew before the act, which may run a loop
// of its own; nothing may be thrown through that.
void Pump::timerEvent(QTimerEvent* event)
{
    killTimer(event->timerId());
    startTimer(0);
    if (takers_.empty() || takers_.back()->isBusy)
        return;
    const std::shared_ptr<Taker> taker = takers_.back();
    taker->isBusy = true;
    try {
        taker->act();
    } catch (...) {
        thrown_ = std::current_exception();
        leave_();
    }
    taker->isBusy = false;
}

} // namespace kova::scenario
