// The one part that needs the client library of servers.

#include "family/data/engine/server_client.hpp"
#include "system/network.hpp"

#include <libpq-fe.h>
#include <soci/postgresql/soci-postgresql.h>

#include <memory>
#include <string_view>

namespace kova::family {

namespace {

using Connection = std::unique_ptr<PGconn, decltype(&PQfinish)>;

/// The five characters behind the severity, as in "FATAL:  28P01"; "" where the server gave none.
std::string StateIn(const std::string& reported)
{
    constexpr std::string_view Mark = ":  ";
    constexpr std::size_t Length = 5;
    const std::size_t at = reported.rfind(Mark);
    if (at == std::string::npos)
        return {};
    const std::string state = reported.substr(at + Mark.size(), Length);
    const bool isState = state.size() == Length
        && state.find_first_not_of("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos;
    return isState ? state : std::string();
}

/// Answers whether the connection was about to be protected when the attempt ended.
bool Connect(PGconn* asked)
{
    bool atProtection = false;
    PostgresPollingStatusType state = PGRES_POLLING_WRITING;
    while (PQstatus(asked) != CONNECTION_BAD && state != PGRES_POLLING_OK && state != PGRES_POLLING_FAILED) {
        atProtection = PQstatus(asked) == CONNECTION_SSL_STARTUP;
        constexpr int LongestWaitMs = 5000;
        const auto awaited = state == PGRES_POLLING_READING ? system::SocketEvent::CanBeRead
                                                            : system::SocketEvent::CanBeWritten;
        if (!system::AwaitSocket(PQsocket(asked), awaited, LongestWaitMs))
            break;
        state = PQconnectPoll(asked);
    }
    return atProtection;
}

class PostgresqlClient final : public ServerClient {
public:
    std::optional<AddressParts> Read(const std::string& address) const override
    {
        const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(
            PQconninfoParse(address.c_str(), nullptr), PQconninfoFree);
        if (!options)
            return std::nullopt;
        AddressParts parts;
        for (const PQconninfoOption* one = options.get(); one->keyword != nullptr; ++one) {
            if (one->val != nullptr)
                parts[one->keyword] = one->val;
        }
        return parts;
    }

    ConnectionAttempt TryConnection(const std::string& connection) const override
    {
        const Connection asked(PQconnectStart(connection.c_str()), PQfinish);
        PQsetErrorVerbosity(asked.get(), PQERRORS_SQLSTATE);
        const bool atProtection = Connect(asked.get());
        const char* host = PQhost(asked.get());
        return {PQconnectionNeedsPassword(asked.get()) != 0, StateIn(PQerrorMessage(asked.get())),
                host != nullptr ? host : "", atProtection};
    }

    std::optional<std::string> StateOf(const std::runtime_error& reported) const override
    {
        const auto* failure = dynamic_cast<const soci::postgresql_soci_error*>(&reported);
        return failure != nullptr ? std::optional(failure->sqlstate()) : std::nullopt;
    }
};

} // namespace

} // namespace kova::family

extern "C" __attribute__((visibility("default"))) const kova::family::ServerClient* KovaServerClient()
{
    static const kova::family::PostgresqlClient client;
    return &client;
}
