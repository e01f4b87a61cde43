#pragma once

#include <condition_variable>
#include <mutex>

namespace kova::test {

/// Where so many threads wait for each other, as often as they like. The standard library's own barrier was
/// seen to leave two of them waiting for ever on Windows.
class MeetingPoint {
public:
    explicit MeetingPoint(int threads) : threads_(threads) { }

    /// Returns when all are there.
    void ArriveAndWait()
    {
        std::unique_lock lock(mutex_);
        const int meeting = meeting_;
        if (++arrived_ == threads_) {
            arrived_ = 0;
            ++meeting_;
            allThere_.notify_all();
            return;
        }
        allThere_.wait(lock, [&] { return meeting_ != meeting; });
    }

private:
    const int threads_;
    std::mutex mutex_;
    std::condition_variable allThere_;
    int arrived_ = 0, meeting_ = 0;
};

} // namespace kova::test
