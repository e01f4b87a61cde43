#include "tests/support/postgres_relay.hpp"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <stdexcept>

namespace kova::test {

namespace {

constexpr const char* SocketName = "/.s.PGSQL.5432";
constexpr int GlanceMs = 5;

sockaddr_un SocketIn(const std::string& folder)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = folder + SocketName;
    std::memcpy(address.sun_path, path.c_str(), std::min(path.size() + 1, sizeof address.sun_path - 1));
    return address;
}

int ConnectTo(const std::string& folder)
{
    const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_un address = SocketIn(folder);
    if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return server;
    close(server);
    return -1;
}

bool IsReady(int socket)
{
    pollfd one{socket, POLLIN, 0};
    return poll(&one, 1, GlanceMs) > 0;
}

/// What has come; "" where the connection is over.
std::string Receive(int from)
{
    std::array<char, 65536> part{};
    const ssize_t length = recv(from, part.data(), part.size(), 0);
    return length > 0 ? std::string(part.data(), static_cast<std::size_t>(length)) : std::string();
}

bool Send(int to, const std::string& text)
{
    return send(to, text.data(), text.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(text.size());
}

bool IsCommit(const std::string& said) { return said.find("COMMIT") != std::string::npos; }

} // namespace

PostgresRelay::PostgresRelay(const PostgresServer& server) : server_(server)
{
    folder_ = (std::filesystem::temp_directory_path() / "relay-XXXXXX").string();
    if (mkdtemp(folder_.data()) == nullptr)
        throw std::runtime_error("no temporary folder could be made");
    Listen();
    serving_ = std::thread([this] { Serve(); });
}

PostgresRelay::~PostgresRelay()
{
    ends_ = true;
    serving_.join();
    for (std::thread& one : passing_)
        one.join();
    close(listener_);
    std::filesystem::remove_all(folder_);
}

void PostgresRelay::Listen()
{
    constexpr int Backlog = 16;
    listener_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_un address = SocketIn(folder_);
    if (bind(listener_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0
        || listen(listener_, Backlog) != 0)
        throw std::runtime_error("the relay's socket could not be made");
}

void PostgresRelay::Refuse()
{
    refuses_ = true;
    Cut();
}

void PostgresRelay::Cut() { ++generation_; }

void PostgresRelay::Serve()
{
    while (!ends_) {
        if (!IsReady(listener_))
            continue;
        const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (refuses_)
            close(client);
        else
            passing_.emplace_back([this, client] { Pass(client); });
    }
}

void PostgresRelay::Pass(int client)
{
    const int born = generation_;
    const int server = ConnectTo(server_.Folder());
    bool passes = server >= 0;
    while (passes && !ends_ && generation_ == born) {
        std::array<pollfd, 2> sockets{{{client, POLLIN, 0}, {server, POLLIN, 0}}};
        poll(sockets.data(), sockets.size(), GlanceMs);
        if (sockets[0].revents != 0)
            passes = PassToServer(client, server);
        if (passes && sockets[1].revents != 0)
            passes = PassToClient(server, client, false);
    }
    close(client);
    if (server >= 0)
        close(server);
}

PostgresRelay::Breaks PostgresRelay::Take()
{
    if (more_ > 0) {
        --more_;
        return breaks_;
    }
    return breaks_.exchange(Breaks::Nothing);
}

bool PostgresRelay::PassToServer(int client, int server)
{
    const std::string said = Receive(client);
    if (said.empty())
        return false;
    ++roundTrips_;
    const Breaks breaks = IsCommit(said) ? Take() : Breaks::Nothing;
    if (breaks == Breaks::Nothing)
        return Send(server, said);
    ++broken_;
    return BreakCommit(breaks, client, server, said);
}

bool PostgresRelay::BreakCommit(Breaks breaks, int client, int server, const std::string& said)
{
    if (breaks == Breaks::DuringCommit) {
        shutdown(client, SHUT_RDWR);
        WaitForAnotherConnection();
    }
    if (breaks != Breaks::BeforeCommit && Send(server, said))
        PassToClient(server, client, true);
    return false;
}

bool PostgresRelay::PassToClient(int server, int client, bool swallowsAnswer)
{
    const std::string answered = Receive(server);
    return !answered.empty() && !swallowsAnswer && Send(client, answered);
}

/// A connection waits where the server tells so.
void PostgresRelay::WaitForAnotherConnection()
{
    const std::string waiting = "select count(*) from pg_stat_activity where wait_event_type = 'Lock'";
    while (server_.Run("postgres", waiting) == std::vector<std::string>{"0"})
        std::this_thread::sleep_for(std::chrono::milliseconds(GlanceMs));
}

} // namespace kova::test
