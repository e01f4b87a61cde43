#pragma once

#include <QObject>

#include <functional>
#include <stop_token>
#include <string>
#include <thread>

namespace kova::registers {

/// Work in a thread of its own, so that the window stays alive. One at a time.
class BackgroundJob : public QObject {
public:
    using Work = std::function<void(std::stop_token stop)>;
    /// With why the work has failed; "" where it has not.
    using Tell = std::function<void(const std::string& failure)>;

    explicit BackgroundJob(QObject* parent) : QObject(parent) { }
    /// Asks work that is under way to end, and waits for it; nobody is told of it any more.
    ~BackgroundJob() override;

    /// `tell` is called in this thread, from the event loop.
    void Begin(Work work, Tell tell);
    void Stop() { stop_.request_stop(); }
    bool IsUnderWay() const { return tell_ != nullptr; }

    /// For the work: has `act` run in the window's thread.
    void Post(std::function<void()> act);

private:
    void End(const std::string& failure);

    std::stop_source stop_;
    Tell tell_;
    std::thread thread_;
};

} // namespace kova::registers
