#include "family/data/engine/server_connection.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "system/network.hpp"

#include <libpq-fe.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace kova::family {

namespace {

using Parameters = std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)>;
using Connection = std::unique_ptr<PGconn, decltype(&PQfinish)>;

/// What the address says and nothing else; null where it cannot be understood.
Parameters ParametersOf(const std::string& address)
{
    return Parameters(PQconninfoParse(address.c_str(), nullptr), PQconninfoFree);
}

std::string ValueOf(const PQconninfoOption* parameters, std::string_view keyword)
{
    for (const PQconninfoOption* one = parameters; one != nullptr && one->keyword != nullptr; ++one) {
        if (keyword == one->keyword && one->val != nullptr)
            return one->val;
    }
    return {};
}

/// What an address gets where it does not say otherwise. An environment variable counts before it.
struct Default {
    const char *keyword, *value, *variable;
};

constexpr Default Defaults[] = {
    {"connect_timeout", "10", "PGCONNECT_TIMEOUT"}, {"keepalives_idle", "10", nullptr},
    {"keepalives_interval", "5", nullptr},          {"keepalives_count", "3", nullptr},
    {"tcp_user_timeout", "15000", nullptr},         {"application_name", "kovaris", "PGAPPNAME"},
    {"client_encoding", "UTF8", nullptr},
};

bool IsGiven(const PQconninfoOption* parameters, const Default& one)
{
    return !ValueOf(parameters, one.keyword).empty()
        || (one.variable != nullptr && std::getenv(one.variable) != nullptr);
}

/// An attempt that has ended one way or the other, with its failure told in full.
struct Attempt {
    Connection connection;
    /// It was about to be protected when it ended.
    bool atProtection = false;
};

Attempt Ask(const std::string& address)
{
    Connection asked(PQconnectStart(address.c_str()), PQfinish);
    PQsetErrorVerbosity(asked.get(), PQERRORS_SQLSTATE);
    bool atProtection = false;
    PostgresPollingStatusType state = PGRES_POLLING_WRITING;
    while (PQstatus(asked.get()) != CONNECTION_BAD && state != PGRES_POLLING_OK
           && state != PGRES_POLLING_FAILED) {
        atProtection = PQstatus(asked.get()) == CONNECTION_SSL_STARTUP;
        constexpr int LongestWaitMs = 5000;
        const auto awaited = state == PGRES_POLLING_READING ? system::SocketEvent::CanBeRead
                                                            : system::SocketEvent::CanBeWritten;
        if (!system::AwaitSocket(PQsocket(asked.get()), awaited, LongestWaitMs))
            break;
        state = PQconnectPoll(asked.get());
    }
    return {std::move(asked), atProtection};
}

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

bool IsUnknownHost(const std::string& host)
{
    // What begins so is no name but a socket of this computer's.
    const bool isName = !host.empty() && host.front() != '/' && host.front() != '@';
    return isName && !system::IsKnownHost(host);
}

std::string Opening(const std::string& address) { return "Falha no banco de dados \"" + address + "\".\r\n"; }

} // namespace

bool IsServer(const std::string& source)
{
    return source.starts_with("postgresql://") || source.starts_with("postgres://");
}

std::optional<std::string> CheckAddress(const std::string& address)
{
    const Parameters parameters = ParametersOf(address);
    if (!parameters)
        return "O endereço do servidor não foi entendido. Informe-o como "
               "postgresql://usuario@servidor/banco ou postgresql:///?service=NOME.";
    if (!ValueOf(parameters.get(), "password").empty() || !ValueOf(parameters.get(), "sslpassword").empty())
        return "O endereço do servidor contém uma senha, que outras pessoas podem ler na linha de comando. "
               "Tire a senha do endereço e guarde-a no arquivo de senhas (~/.pgpass, ou o que PGPASSFILE "
               "indicar) ou em um arquivo de serviço.";
    return std::nullopt;
}

std::string ConnectionTo(const std::string& address)
{
    const Parameters parameters = ParametersOf(address);
    std::string connection = address;
    char separator = address.find('?') == std::string::npos ? '?' : '&';
    for (const Default& one : Defaults) {
        if (IsGiven(parameters.get(), one))
            continue;
        connection.append(1, separator).append(one.keyword).append("=").append(one.value);
        separator = '&';
    }
    return connection;
}

DatabaseFailure RefusalOfServer(const std::string& address, const std::string& connection,
                                const std::runtime_error& cause)
{
    const Attempt attempt = Ask(connection);
    const PGconn* asked = attempt.connection.get();
    if (PQconnectionNeedsPassword(asked) != 0)
        return DatabaseFailure(
            Opening(address)
            + "O servidor pede uma senha. Guarde-a no arquivo de senhas (~/.pgpass, ou o que "
              "PGPASSFILE indicar), que só o seu usuário pode ler.");
    if (const std::string state = StateIn(PQerrorMessage(asked)); !state.empty())
        return ServerFailure(address, state, cause.what());
    if (const char* host = PQhost(asked); host != nullptr && IsUnknownHost(host)) {
        const std::string unknown = std::string("O servidor \"") + host
            + "\" não foi encontrado pelo nome. Verifique o endereço e a rede.";
        return {Opening(address) + unknown, Fault::ConnectionLost, unknown};
    }
    if (attempt.atProtection)
        return DatabaseFailure(
            WithDetail(Opening(address)
                           + "A conexão protegida (TLS) com o servidor não foi possível. Verifique o "
                             "certificado e sslmode.",
                       cause.what()));
    return ServerFailure(address, "08001", cause.what());
}

} // namespace kova::family
