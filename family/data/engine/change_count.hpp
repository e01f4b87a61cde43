#pragma once

#include <soci/soci.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kova::family {

class Database;

/// The tables that tell who may do what.
std::vector<std::string> CountedRights();

/// How often the rows of some tables were changed, by any program: what a connection keeps of them in memory
/// is read again where they were. The Database must outlive it.
class ChangeCount {
public:
    /// A selection without parentheses, of one row: how often they were changed, all together. None is ever
    /// set back, so that the sum stands still only where all of them do.
    static std::string Selection(const std::vector<std::string>& tables);

    ChangeCount(Database& database, const std::vector<std::string>& tables);
    ChangeCount(const ChangeCount&) = delete;
    ChangeCount& operator=(const ChangeCount&) = delete;

    /// Calls `read` the first time and where the tables were changed since it last came to its end. `known`
    /// is how often they were, asked before what is read; nothing where that is to be asked now. Fails as the
    /// statements do, and then reads again the next time.
    template <typename Read> void ReadAgain(std::optional<long long> known, Read read)
    {
        const long long now = known ? *known : Asked();
        if (readAt_ == now)
            return;
        readAt_.reset();
        read();
        readAt_ = now;
    }

    /// The same, asked now, where `read` takes over single changes: it is told how many there were since it
    /// last came to its end, nothing the first time.
    template <typename Read> void ReadOn(Read read)
    {
        const long long now = Asked();
        if (readAt_ == now)
            return;
        const std::optional<long long> before = std::exchange(readAt_, std::nullopt);
        read(before ? std::optional(now - *before) : std::nullopt);
        readAt_ = now;
    }

private:
    long long Asked();

    std::optional<long long> readAt_;
    long long counted_ = 0;
    soci::statement count_;
};

} // namespace kova::family
