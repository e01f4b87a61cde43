#pragma once

#include "tests/support/postgres_server.hpp"

#include <atomic>
#include <string>
#include <thread>

namespace kova::test {

/// Stands between a client and a server and passes on what they say, until it is told to break a connection.
class PostgresRelay {
public:
    enum class Breaks {
        Nothing,
        /// The next commit does not reach the server.
        BeforeCommit,
        /// The server commits and its answer does not reach the client.
        AfterCommit,
        /// The client is cut off; the commit reaches the server only when another connection waits there.
        DuringCommit,
    };

    explicit PostgresRelay(const PostgresServer& server);
    ~PostgresRelay();
    PostgresRelay(const PostgresRelay&) = delete;
    PostgresRelay& operator=(const PostgresRelay&) = delete;

    /// Where a client reaches the database through the relay.
    std::string AddressOf(const std::string& database) const
    {
        return "postgresql://postgres@/" + database + "?host=" + folder_;
    }

    /// What happens at the next commit, once.
    void Break(Breaks breaks) { breaks_ = breaks; }
    /// The same for so many commits, one after the other.
    void BreakEach(Breaks breaks, int commits)
    {
        more_ = commits - 1;
        breaks_ = breaks;
    }
    /// Ends every connection, and lets none in until Admit.
    void Refuse();
    void Admit() { refuses_ = false; }
    /// Ends every connection that there is.
    void Cut();

    /// Commits that were broken.
    int Broken() const { return broken_; }
    /// How often a client has said something; it goes on only when it has been answered.
    int RoundTrips() const { return roundTrips_; }

private:
    void Listen();
    void Serve();
    void Pass(int client);
    /// Passes on what the client has said. False where the connection is over.
    bool PassToServer(int client, int server);
    bool PassToClient(int server, int client, bool swallowsAnswer);
    bool BreakCommit(Breaks breaks, int client, int server, const std::string& said);
    void WaitForAnotherConnection();
    Breaks Take();

    const PostgresServer& server_;
    std::string folder_;
    int listener_ = -1;
    std::atomic<Breaks> breaks_ = Breaks::Nothing;
    std::atomic<int> more_ = 0, broken_ = 0, roundTrips_ = 0;
    std::atomic<bool> refuses_ = false, ends_ = false;
    std::atomic<int> generation_ = 0;
    std::vector<std::thread> passing_;
    std::thread serving_;
};

} // namespace kova::test
