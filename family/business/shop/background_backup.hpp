#pragma once

#include "agenda/contracts/date_time.hpp"

#include <atomic>
#include <string>
#include <thread>

namespace kova::family {

/// Makes the copy of a day (MakeDailyBackup) on a thread and a connection of its own. When it goes before
/// the copy is whole, the copy is given up and nothing of it stays.
class BackgroundBackup {
public:
    BackgroundBackup(std::string source, Date day);
    BackgroundBackup(const BackgroundBackup&) = delete;
    BackgroundBackup& operator=(const BackgroundBackup&) = delete;

    bool HasEnded() const { return ended_; }
    /// Why there is no copy, in Portuguese; "" where there is one, also while it is being made.
    std::string Reason() const { return ended_ ? reason_ : std::string(); }

private:
    void Run(const std::stop_token& stop);

    const std::string source_;
    const Date day_;
    /// Written before `ended_`, read only after it.
    std::string reason_;
    std::atomic<bool> ended_ = false;
    std::jthread thread_;
};

} // namespace kova::family
