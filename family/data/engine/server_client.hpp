#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>

namespace soci {
class backend_factory;
class session;
} // namespace soci

namespace kova::family {

/// What an address says, by keyword.
using AddressParts = std::map<std::string, std::string>;

/// What came of an attempt to connect.
struct ConnectionAttempt {
    bool wantsPassword = false;
    /// The state of five characters (SQLSTATE) that the server gave; "" where it gave none.
    std::string state;
    /// Whom the attempt was about last; "" where it came to nobody.
    std::string host;
    /// The connection was about to be protected when the attempt ended.
    bool atProtection = false;
    /// The server offers that, and it failed by what the certificates are.
    bool offersProtection = false;
    /// The certificate is good, and another host's.
    bool isOthersCertificate = false;
};

/// The value of a keyword; "" where nothing is said of it.
std::string ValueOf(const AddressParts& parts, const char* keyword);

/// What is asked of the client library of servers. It brings some thirty libraries with it, which take longer
/// to load than a shop in a file takes to open: only a library of its own needs it, which is loaded when a
/// server is asked for first.
class ServerClient {
public:
    virtual ~ServerClient() = default;

    /// What makes connections to a server.
    virtual const soci::backend_factory& BackEnd() const = 0;

    /// Nothing where the address cannot be understood. Asks nobody.
    virtual std::optional<AddressParts> Read(const std::string& address) const = 0;
    /// The same with what the service file and the environment say besides, and what is taken where nobody
    /// says anything. Asks nobody.
    virtual std::optional<AddressParts> Complete(const std::string& address) const = 0;
    /// The file of those whom this computer trusts to make certificates, as "sslrootcert" takes it; "" where
    /// the user has one of his own in the usual place, or the computer has none.
    virtual std::string TrustedCertificates() const = 0;
    /// Connects for the sake of what comes of it, and ends the connection.
    virtual ConnectionAttempt TryConnection(const std::string& connection) const = 0;
    /// The state (SQLSTATE) under which a server's back end reported this; nothing where none has.
    virtual std::optional<std::string> StateOf(const std::runtime_error& reported) const = 0;

    /// The system's number of the socket of a session on a server.
    virtual std::intptr_t SocketOf(soci::session& session) const = 0;
    /// Takes the notices that have come to a session on a server, and answers whether there were any; nothing
    /// where its connection is lost. Waits for nobody.
    virtual std::optional<bool> TakeNotices(soci::session& session) const = 0;
};

/// Where a server tells its sessions that there are new lines in the audit.
inline constexpr const char* NoticeChannel = "kovaris_novidades";

/// The name of that library, and of the function that it exports; its ServerClient stays as long as it does.
inline constexpr const char* ServerClientLibrary = "kovaris-postgresql";
inline constexpr const char* ServerClientEntry = "KovaServerClient";
using ServerClientFunction = const ServerClient* (*)();

/// Loads the library that lies beside the program or library which this is part of, the first time; it then
/// stays for the rest of the process. Fails with a DatabaseFailure where it is missing or damaged. For any
/// thread.
const ServerClient& RequireServerClient();

/// Null where nobody has asked for a server so far. For any thread.
const ServerClient* LoadedServerClient();

} // namespace kova::family
