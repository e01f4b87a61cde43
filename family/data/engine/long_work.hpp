#pragma once

#include <functional>
#include <stdexcept>
#include <stop_token>

namespace kova::family {

/// Long work was asked to end.
class Interrupted : public std::runtime_error {
public:
    Interrupted() : std::runtime_error("interrupted") { }
};

/// What follows long work, and may end it before its time.
struct LongWork {
    /// How much of how much is done; told from time to time. May be empty.
    std::function<void(long long done, long long total)> progress;
    /// Asks the work to end: it fails then and leaves nothing behind.
    std::stop_token stop;

    void Reach(long long done, long long total) const
    {
        if (progress)
            progress(done, total);
    }
    /// Fails with Interrupted where a stop is asked for.
    void RequireGoingOn() const
    {
        if (stop.stop_requested())
            throw Interrupted();
    }
};

} // namespace kova::family
