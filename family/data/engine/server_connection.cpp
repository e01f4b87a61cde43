#include "family/data/engine/server_connection.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/server_client.hpp"
#include "system/network.hpp"

#include <cstdlib>

namespace kova::family {

namespace {

std::string ValueOf(const AddressParts& parts, const char* keyword)
{
    const auto found = parts.find(keyword);
    return found == parts.end() ? std::string() : found->second;
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

bool IsGiven(const AddressParts& parts, const Default& one)
{
    return !ValueOf(parts, one.keyword).empty()
        || (one.variable != nullptr && std::getenv(one.variable) != nullptr);
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
    const auto parts = RequireServerClient().Read(address);
    if (!parts)
        return "O endereço do servidor não foi entendido. Informe-o como "
               "postgresql://usuario@servidor/banco ou postgresql:///?service=NOME.";
    if (!ValueOf(*parts, "password").empty() || !ValueOf(*parts, "sslpassword").empty())
        return "O endereço do servidor contém uma senha, que outras pessoas podem ler na linha de comando. "
               "Tire a senha do endereço e guarde-a no arquivo de senhas (~/.pgpass, ou o que PGPASSFILE "
               "indicar) ou em um arquivo de serviço.";
    return std::nullopt;
}

std::string ConnectionTo(const std::string& address)
{
    const AddressParts parts = RequireServerClient().Read(address).value_or(AddressParts());
    std::string connection = address;
    char separator = address.find('?') == std::string::npos ? '?' : '&';
    for (const Default& one : Defaults) {
        if (IsGiven(parts, one))
            continue;
        connection.append(1, separator).append(one.keyword).append("=").append(one.value);
        separator = '&';
    }
    return connection;
}

DatabaseFailure RefusalOfServer(const std::string& address, const std::string& connection,
                                const std::runtime_error& cause)
{
    const ConnectionAttempt attempt = RequireServerClient().TryConnection(connection);
    if (attempt.wantsPassword)
        return DatabaseFailure(
            Opening(address)
            + "O servidor pede uma senha. Guarde-a no arquivo de senhas (~/.pgpass, ou o que "
              "PGPASSFILE indicar), que só o seu usuário pode ler.");
    if (!attempt.state.empty())
        return ServerFailure(address, attempt.state, cause.what());
    if (IsUnknownHost(attempt.host)) {
        const std::string unknown = "O servidor \"" + attempt.host
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
