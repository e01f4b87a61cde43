#include "family/data/engine/server_connection.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/server_client.hpp"
#include "family/data/engine/server_protection.hpp"
#include "system/network.hpp"
#include "system/user_folders.hpp"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>

namespace kova::family {

namespace {

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

/// With which a list of keywords may begin.
constexpr std::string_view Keywords[] = {"host",     "hostaddr", "port",        "dbname",  "user",
                                         "password", "passfile", "sslpassword", "service", "sslmode"};

/// The beginning up to the first of these letters, in small ones.
std::string WordBefore(std::string_view text, std::string_view letters)
{
    std::string word(text.substr(0, text.find_first_of(letters)));
    std::transform(word.begin(), word.end(), word.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return word;
}

bool BeginsAsAddress(std::string_view source)
{
    return source.starts_with("postgresql://") || source.starts_with("postgres://");
}

} // namespace

bool IsServer(const std::string& source)
{
    constexpr std::string_view Blanks = " \t\r\n";
    const std::string_view text =
        std::string_view(source).substr(std::min(source.find_first_not_of(Blanks), source.size()));
    const std::string scheme = text.find(':') == text.npos ? std::string() : WordBefore(text, ":");
    if (scheme == "postgresql" || scheme == "postgres")
        return true;
    const std::string keyword = text.find('=') == text.npos ? std::string() : WordBefore(text, "= \t");
    return std::find(std::begin(Keywords), std::end(Keywords), keyword) != std::end(Keywords);
}

std::optional<std::string> CheckAddress(const std::string& address)
{
    const auto parts = RequireServerClient().Read(address);
    if (parts && (!ValueOf(*parts, "password").empty() || !ValueOf(*parts, "sslpassword").empty()))
        return "O endereço do servidor contém uma senha, que outras pessoas podem ler na linha de comando. "
               "Tire a senha do endereço e guarde-a no arquivo de senhas ("
            + std::string(system::ShownPasswordsFile())
            + ", ou o que PGPASSFILE indicar) ou em um arquivo de serviço.";
    if (!parts || !BeginsAsAddress(address))
        return "O endereço do servidor não foi entendido. Informe-o como "
               "postgresql://usuario@servidor/banco ou postgresql:///?service=NOME.";
    return std::nullopt;
}

std::string ConnectionTo(const std::string& address)
{
    const ServerClient& client = RequireServerClient();
    const AddressParts parts = client.Read(address).value_or(AddressParts());
    AddressParts added = DemandedProtection(parts, client.Complete(address).value_or(AddressParts()));
    for (const Default& one : Defaults) {
        if (!IsGiven(parts, one))
            added[one.keyword] = one.value;
    }
    std::string connection = address;
    char separator = address.find('?') == std::string::npos ? '?' : '&';
    for (const auto& [keyword, value] : added) {
        connection.append(1, separator).append(keyword).append("=").append(value);
        separator = '&';
    }
    return connection;
}

DatabaseFailure RefusalOfServer(const std::string& address, const std::string& connection,
                                const std::runtime_error& cause)
{
    const ConnectionAttempt attempt = RequireServerClient().TryConnection(connection);
    if (attempt.wantsPassword)
        return DatabaseFailure(Opening(address) + "O servidor pede uma senha. Guarde-a no arquivo de senhas ("
                               + std::string(system::ShownPasswordsFile())
                               + ", ou o que PGPASSFILE indicar), que só o seu usuário pode ler.");
    if (!attempt.state.empty())
        return ServerFailure(address, attempt.state, cause.what());
    // Whoever was about to be protected was found, by whatever name.
    if (attempt.atProtection)
        return DatabaseFailure(WithDetail(
            Opening(address) + "A conexão protegida (TLS) não foi possível. "
                + WhyUnprotected(attempt, RequireServerClient().Read(connection).value_or(AddressParts())),
            cause.what()));
    if (IsUnknownHost(attempt.host)) {
        const std::string unknown = "O servidor \"" + attempt.host
            + "\" não foi encontrado pelo nome. Verifique o endereço e a rede.";
        return {Opening(address) + unknown, Fault::ConnectionLost, unknown};
    }
    return ServerFailure(address, "08001", cause.what());
}

} // namespace kova::family
