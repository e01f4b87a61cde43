#pragma once

#include <functional>
#include <memory>
#include <string>

namespace kova::bench {

/// Hears of new lines of the audit with the least that a program can do: on a server by its notices through
/// the client library, in a file by the engine's counter, looked at once a second. Then it reads the lines.
class BareListener {
public:
    static std::unique_ptr<BareListener> Of(const std::string& source);
    virtual ~BareListener() = default;

    /// Tells the key of each new line about an appointment, for that many seconds.
    virtual void Listen(double seconds, const std::function<void(long long number)>& tell) = 0;
};

} // namespace kova::bench
