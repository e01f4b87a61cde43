#include "family/data/engine/server_protection.hpp"

#include "family/data/engine/server_connection.hpp"
#include "system/path_text.hpp"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace kova::family {

namespace {

constexpr const char* Mode = "sslmode";
constexpr const char* RootFile = "sslrootcert";
constexpr std::string_view Checked = "verify-full";
/// What the client library takes where nobody says anything.
constexpr std::string_view Unsaid = "prefer";

/// "127.0.0.1" and the others of the computer's own net, in figures.
bool IsOwnFourNumbers(std::string_view host)
{
    constexpr int Numbers = 4, Highest = 255;
    int count = 0, first = 0;
    const char* at = host.data();
    const char* const end = at + host.size();
    for (; count < Numbers; ++count) {
        int number = -1;
        const auto read = std::from_chars(at, end, number);
        if (read.ec != std::errc() || number < 0 || number > Highest)
            return false;
        first = count == 0 ? number : first;
        const bool isLast = count == Numbers - 1;
        if (isLast ? read.ptr != end : read.ptr == end || *read.ptr != '.')
            return false;
        at = read.ptr + 1;
    }
    constexpr int OwnNet = 127;
    return first == OwnNet;
}

bool IsHere(std::string_view host)
{
    // What begins so is a socket; without a host one is taken.
    if (host.empty() || host.front() == '/' || host.front() == '@')
        return true;
    constexpr std::string_view Own = "localhost";
    const bool isOwnName =
        std::equal(host.begin(), host.end(), Own.begin(), Own.end(), [](char letter, char own) {
            return letter == own || (letter >= 'A' && letter <= 'Z' && letter - 'A' + 'a' == own);
        });
    return isOwnName || host == "::1" || IsOwnFourNumbers(host);
}

/// Whether all of a list, as "first,second", are.
bool AreHere(std::string_view hosts)
{
    for (;;) {
        const std::size_t comma = hosts.find(',');
        if (!IsHere(hosts.substr(0, comma)))
            return false;
        if (comma == std::string_view::npos)
            return true;
        hosts.remove_prefix(comma + 1);
    }
}

/// How the owner wants it; "" where nothing is said. A variable of the environment is nobody's word on this
/// shop.
std::string OwnersWord(const AddressParts& address, const AddressParts& complete)
{
    if (const std::string inAddress = ValueOf(address, Mode); !inAddress.empty())
        return inAddress;
    const std::string found = ValueOf(complete, Mode);
    const bool mayBeTheServices = !ValueOf(address, "service").empty() && std::getenv("PGSSLMODE") == nullptr;
    return mayBeTheServices && found != Unsaid ? found : std::string();
}

std::string HostOf(const AddressParts& complete)
{
    const std::string host = ValueOf(complete, "host");
    return host.empty() ? ValueOf(complete, "hostaddr") : host;
}

} // namespace

bool LeavesTheComputer(const AddressParts& complete)
{
    return !AreHere(ValueOf(complete, "host")) || !AreHere(ValueOf(complete, "hostaddr"));
}

AddressParts DemandedProtection(const AddressParts& address, const AddressParts& complete)
{
    if (!LeavesTheComputer(complete) || !OwnersWord(address, complete).empty())
        return {};
    // The other protection that the client library knows would go before this one.
    AddressParts demanded{{Mode, std::string(Checked)}, {"gssencmode", "disable"}};
    if (ValueOf(complete, RootFile).empty()) {
        if (const std::string trusted = RequireServerClient().TrustedCertificates(); !trusted.empty())
            demanded[RootFile] = trusted;
    }
    return demanded;
}

std::optional<std::string> WarningOfAddress(const std::string& address)
{
    if (!IsServer(address))
        return std::nullopt;
    const auto parts = RequireServerClient().Read(address);
    const auto complete = RequireServerClient().Complete(address);
    if (!parts || !complete || !LeavesTheComputer(*complete))
        return std::nullopt;
    const std::string word = OwnersWord(*parts, *complete);
    if (word.empty() || word == Checked)
        return std::nullopt;
    return "A conexão com o servidor \"" + HostOf(*complete)
        + "\" não é conferida por inteiro, porque o endereço" + " diz sslmode=" + word
        + ": quem estiver no caminho pode ler ou mudar os dados da loja. Prefira"
        + " sslmode=verify-full, com o certificado da autoridade em sslrootcert.";
}

std::string WhyUnprotected(const ConnectionAttempt& attempt, const AddressParts& connection)
{
    std::error_code unreadable;
    const std::string root = ValueOf(connection, RootFile);
    if (!root.empty() && root != "system" && !std::filesystem::exists(system::PathOf(root), unreadable))
        return "Falta o arquivo com o certificado da autoridade, \"" + root
            + "\", sem o qual o servidor não pode ser conferido. Peça-o a quem cuida do servidor e diga em"
              " sslrootcert onde está.";
    const std::string server = "\"" + attempt.host + "\"";
    if (!attempt.offersProtection)
        return "O servidor " + server
            + " não oferece uma conexão protegida (TLS). Peça a quem cuida do servidor que a ligue (ssl = "
              "on)."
              " Só em uma rede em que você confia, diga no endereço sslmode=disable.";
    if (attempt.isOthersCertificate)
        return "O certificado do servidor não é do nome " + server
            + ". Informe no endereço o nome que está no certificado, ou peça a quem cuida do servidor um"
              " certificado com este nome.";
    return "O certificado do servidor " + server
        + " não foi feito por uma autoridade conhecida deste computador, ou não vale mais. Peça a quem cuida "
          "do"
          " servidor o certificado da autoridade e diga em sslrootcert onde está.";
}

} // namespace kova::family
