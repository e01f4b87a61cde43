#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/nullable.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace kova::family {

/// A row that somebody has written, as the audit tells of it.
struct NewsOfRow {
    std::string table;
    Key key = 0;
    /// "CODE - NAME", and the computer.
    std::string user, desk;
    /// Of the audit's line, by which a program knows what it has written itself (own_lines.hpp).
    Key line = 0;
    /// Of an appointment what the line keeps of it (ReadAuditedColumns); Null of anything else.
    Nullable<std::string> before{}, after{};
    /// Its days from then on, "yyyy-mm-dd"; Null where none are known, and of anything else.
    Nullable<std::string> begins{}, ends{};
};

/// What was written since the last look, by whomever, in the order in which it was kept. A server says by
/// itself that there is something; a file's engine has a counter that costs no read of the file's pages. What
/// is missed while the server is lost is told by the first look after it is back, since lines are known by
/// their place in the audit's chain, which is the order of the commits. From one thread.
class News {
public:
    /// From now on. The Database, which must outlive it, is for nothing else: a connection that others make
    /// anew hears no notices. Fails as Look.
    explicit News(Database& database);
    News(const News&) = delete;
    News& operator=(const News&) = delete;

    /// Empty where there is nothing new; asks a server nothing then. Fails with a DatabaseFailure, and begins
    /// the next time where it has stopped: a lost connection is made anew there.
    std::vector<NewsOfRow> Look();

    /// Waits until a server has something to say, a lost connection among that, so many milliseconds at most.
    /// Answers whether it has; false at once where the data lie in a file, which says nothing by itself.
    bool Await(int milliseconds);

    /// The system's number of the socket that can be read when a server has something to say; none where the
    /// data lie in a file, or the connection is lost.
    static constexpr std::intptr_t NoSocket = -1;
    std::intptr_t Socket();

private:
    void Listen();
    bool MayBeNew();
    Key FileChanges();
    void ListenAnew();
    std::vector<NewsOfRow> ReadOnLiveConnection();
    std::vector<NewsOfRow> Read();

    Database& database_;
    bool isListening_ = false, isBehind_ = false;
    Key changes_ = 0, last_ = 0;
};

} // namespace kova::family
