// The one part that needs the client library of servers.

#include "family/data/engine/server_client.hpp"
#include "system/network.hpp"
#include "system/user_folders.hpp"

#include <libpq-fe.h>
#include <soci/postgresql/soci-postgresql.h>
#include <soci/soci.h>

#include <cstdint>
#include <filesystem>
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

/// How far an attempt came.
struct Course {
    /// The connection was about to be protected when the attempt ended.
    bool atProtection = false;
    /// The connection was protected, and nothing was sent over it yet.
    bool isProtected = false;
};

/// To the end, or only until the connection is protected.
Course Connect(PGconn* asked, bool forProtectionOnly = false)
{
    Course course;
    PostgresPollingStatusType state = PGRES_POLLING_WRITING;
    while (PQstatus(asked) != CONNECTION_BAD && state != PGRES_POLLING_OK && state != PGRES_POLLING_FAILED) {
        course.atProtection = PQstatus(asked) == CONNECTION_SSL_STARTUP;
        course.isProtected = !course.atProtection && PQsslInUse(asked) != 0;
        if (course.isProtected && forProtectionOnly)
            break;
        constexpr int LongestWaitMs = 5000;
        const auto awaited = state == PGRES_POLLING_READING ? system::SocketEvent::CanBeRead
                                                            : system::SocketEvent::CanBeWritten;
        if (!system::AwaitSocket(PQsocket(asked), awaited, LongestWaitMs))
            break;
        state = PQconnectPoll(asked);
    }
    return course;
}

/// Whether the same connection can be protected in that mode, with those whom that file trusts or, where it
/// is null, whom the connection does. Whoever answers gets to know nothing.
bool CanBeProtected(const std::string& connection, const char* mode, const char* trusted = nullptr)
{
    // A keyword ends the list where it is null.
    const char* const keywords[] = {"dbname", "sslmode", trusted != nullptr ? "sslrootcert" : nullptr,
                                    nullptr};
    const char* const values[] = {connection.c_str(), mode, trusted, nullptr};
    const Connection asked(PQconnectStartParams(keywords, values, 1), PQfinish);
    return Connect(asked.get(), true).isProtected;
}

/// No file, so that no certificate is looked at.
constexpr const char* Nobody = "/dev/null/root.crt";

AddressParts PartsOf(PQconninfoOption* told)
{
    const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(told, PQconninfoFree);
    AddressParts parts;
    for (const PQconninfoOption* one = options.get(); one != nullptr && one->keyword != nullptr; ++one) {
        if (one->val != nullptr)
            parts[one->keyword] = one->val;
    }
    return parts;
}

bool IsFile(const std::filesystem::path& path)
{
    std::error_code unreadable;
    return std::filesystem::exists(path, unreadable);
}

class PostgresqlClient final : public ServerClient {
public:
    const soci::backend_factory& BackEnd() const override { return *soci::factory_postgresql(); }

    std::optional<AddressParts> Read(const std::string& address) const override
    {
        PQconninfoOption* const told = PQconninfoParse(address.c_str(), nullptr);
        return told != nullptr ? std::optional(PartsOf(told)) : std::nullopt;
    }

    std::optional<AddressParts> Complete(const std::string& address) const override
    {
        // The library tells what it would take only of a connection. One with a value that there is not ends
        // before anybody is asked.
        const char* const keywords[] = {"dbname", "channel_binding", nullptr};
        const char* const values[] = {address.c_str(), "?", nullptr};
        const Connection refused(PQconnectStartParams(keywords, values, 1), PQfinish);
        const AddressParts parts = PartsOf(PQconninfo(refused.get()));
        return parts.empty() ? std::nullopt : std::optional(parts);
    }

    std::string TrustedCertificates() const override
    {
        if (IsFile(system::UserFolderOf("postgresql") / "root.crt"))
            return {};
        constexpr int KnowsTheSystems = 160000;
        if (PQlibVersion() >= KnowsTheSystems)
            return "system";
        for (const char* file : {"/etc/ssl/certs/ca-certificates.crt", "/etc/pki/tls/certs/ca-bundle.crt"}) {
            if (IsFile(file))
                return file;
        }
        return {};
    }

    ConnectionAttempt TryConnection(const std::string& connection) const override
    {
        const Connection asked(PQconnectStart(connection.c_str()), PQfinish);
        PQsetErrorVerbosity(asked.get(), PQERRORS_SQLSTATE);
        const Course course = Connect(asked.get());
        const bool offersProtection = course.atProtection && CanBeProtected(connection, "require", Nobody);
        const char* host = PQhost(asked.get());
        return {PQconnectionNeedsPassword(asked.get()) != 0,
                StateIn(PQerrorMessage(asked.get())),
                host != nullptr ? host : "",
                course.atProtection,
                offersProtection,
                offersProtection && CanBeProtected(connection, "verify-ca")};
    }

    std::optional<std::string> StateOf(const std::runtime_error& reported) const override
    {
        const auto* failure = dynamic_cast<const soci::postgresql_soci_error*>(&reported);
        return failure != nullptr ? std::optional(failure->sqlstate()) : std::nullopt;
    }

    std::intptr_t SocketOf(soci::session& session) const override { return PQsocket(ConnectionOf(session)); }

    std::optional<bool> TakeNotices(soci::session& session) const override
    {
        PGconn* const connection = ConnectionOf(session);
        if (PQconsumeInput(connection) == 0 || PQstatus(connection) != CONNECTION_OK)
            return std::nullopt;
        bool were = false;
        while (PGnotify* const notice = PQnotifies(connection)) {
            PQfreemem(notice);
            were = true;
        }
        return were;
    }

private:
    static PGconn* ConnectionOf(soci::session& session)
    {
        return static_cast<soci::postgresql_session_backend*>(session.get_backend())->conn_;
    }
};

} // namespace

} // namespace kova::family

extern "C" __attribute__((visibility("default"))) const kova::family::ServerClient* KovaServerClient()
{
    static const kova::family::PostgresqlClient client;
    return &client;
}
