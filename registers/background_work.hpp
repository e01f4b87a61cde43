#pragma once

#include "family/data/engine/long_work.hpp"

#include <QObject>

#include <functional>
#include <stop_token>
#include <string>
#include <thread>

namespace kova::registers {

/// Long work in a thread of its own, so that the window takes input meanwhile. One at a time.
class BackgroundWork : public QObject {
public:
    /// Runs in the other thread; what it throws is told at the end.
    using Act = std::function<void(const family::LongWork& work)>;

    /// Both are called in this thread, from the event loop: how much of a hundred is done, and the end with
    /// what has failed, empty where nothing has.
    struct Tell {
        std::function<void(int hundredths)> progress;
        std::function<void(const std::string& failure)> end;
    };

    explicit BackgroundWork(QObject* parent) : QObject(parent) { }
    /// Asks work that is under way to end, and waits for it.
    ~BackgroundWork() override;

    /// Without work that is under way only.
    void Begin(const Act& act, Tell tell);
    bool IsUnderWay() const { return thread_.joinable(); }
    void Stop() { stop_.request_stop(); }

private:
    void Run(const Act& act, const std::stop_token& stop);
    void End(const std::string& failure);

    Tell tell_;
    std::stop_source stop_;
    std::thread thread_;
};

} // namespace kova::registers
