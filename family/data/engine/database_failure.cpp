#include "family/data/engine/database_failure.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/failure_words.hpp"
#include "family/data/engine/long_work.hpp"
#include "family/data/engine/server_client.hpp"
#include "system/user_folders.hpp"
#include "system/want_of_room.hpp"

#include <soci/soci.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <filesystem>
#include <optional>
#include <utility>

namespace kova::family {

namespace {

/// Of long work that was asked to end.
constexpr std::string_view Stopped = "O trabalho foi interrompido antes do fim; nada foi gravado.";

/// What the file engine reports by a code of its own.
struct FileResult {
    int code;
    Fault fault;
    std::string_view cause;
};

constexpr std::string_view AgainstTheRules =
    "O banco de dados não aceita o que seria gravado, porque não segue as regras dele. Confira os dados.";

constexpr FileResult FileResults[] = {
    {SQLITE_FULL, Fault::Shortage,
     "O disco está cheio. Libere espaço e tente novamente; nada do que estava gravado se perdeu."},
    {SQLITE_BUSY, Fault::Locked,
     "O banco de dados está em uso por outro programa. Feche-o e tente novamente."},
    {SQLITE_LOCKED, Fault::Locked,
     "O banco de dados está em uso por outro programa. Feche-o e tente novamente."},
    {SQLITE_READONLY, Fault::Lasting,
     "O banco de dados não aceita gravação. Verifique as permissões do arquivo e da pasta."},
    {SQLITE_PERM, Fault::Lasting,
     "O banco de dados não aceita gravação. Verifique as permissões do arquivo e da pasta."},
    {SQLITE_NOTADB, Fault::Lasting, "O arquivo não é um banco de dados. Escolha outro arquivo."},
    {SQLITE_CORRUPT, Fault::Lasting,
     "O banco de dados está danificado. Restaure a cópia de segurança mais recente."},
    {SQLITE_CANTOPEN, Fault::Lasting,
     "O arquivo não pode ser aberto. Verifique o caminho e as permissões da pasta."},
    {SQLITE_IOERR, Fault::Lasting,
     "O disco não respondeu à leitura ou à gravação. Verifique o disco e tente novamente."},
    {SQLITE_NOMEM, Fault::Shortage,
     "A memória do computador acabou. Feche outros programas e tente novamente."},
    {SQLITE_CONSTRAINT, Fault::Lasting, AgainstTheRules},
    {SQLITE_INTERRUPT, Fault::Lasting, Stopped},
};

/// Stands in a cause for the file of passwords as this system calls it.
constexpr std::string_view PasswordsFile = "$SENHAS";

/// A state of a server, or the class of states that begin with it.
struct ServerState {
    std::string_view state;
    Fault fault;
    std::string_view cause;
};

constexpr std::string_view Lost =
    "A conexão com o servidor foi perdida. Verifique a rede e se o servidor está ligado, e tente novamente.";

/// Of what the engine reports and nobody has foreseen.
constexpr std::string_view Refused = "O banco de dados recusou o pedido. Tente novamente.";

/// In the place of a state where the client library reports what no server has told.
constexpr std::string_view NoState = "     ";

// The first that fits counts.
constexpr ServerState ServerStates[] = {
    {"08001", Fault::ConnectionLost,
     "O servidor não pode ser alcançado. Verifique a rede, e se o servidor está ligado e o endereço está"
     " certo."},
    {"08", Fault::ConnectionLost, Lost},
    {NoState, Fault::ConnectionLost, Lost},
    {"57P03", Fault::ConnectionLost,
     "O servidor está iniciando ou encerrando. Aguarde um momento e tente novamente."},
    {"57P04", Fault::Lasting, "O banco de dados foi apagado no servidor. Fale com quem cuida dele."},
    {"57P", Fault::ConnectionLost,
     "O servidor encerrou a conexão, como faz quando é desligado ou reiniciado. Tente novamente."},
    {"25P03", Fault::ConnectionLost, "O servidor encerrou a conexão, que esperou demais. Tente novamente."},
    {"53300", Fault::ConnectionLost,
     "O servidor já tem todas as conexões que aceita. Feche programas que o usam, ou aumente o limite dele."},
    {"53100", Fault::Shortage,
     "O disco do servidor está cheio. Libere espaço nele e tente novamente; nada do que estava gravado se"
     " perdeu."},
    {"53", Fault::Shortage, "O servidor está sem recursos. Tente novamente mais tarde."},
    {"40", Fault::Collision, "Outros postos gravavam os mesmos registros ao mesmo tempo. Tente novamente."},
    {"55P03", Fault::Locked,
     "Outro posto está gravando o mesmo registro. Aguarde um momento e tente novamente."},
    {"57014", Fault::Shortage, "O servidor demorou demais e a operação foi interrompida. Tente novamente."},
    {"28P01", Fault::Lasting,
     "O servidor não aceitou o usuário ou a senha. Verifique o usuário no endereço e a senha no arquivo de"
     " senhas ($SENHAS)."},
    {"28", Fault::Lasting,
     "O servidor não aceita este usuário a partir deste computador, ou só com uma conexão protegida (TLS)."
     " Fale com quem cuida do servidor."},
    {"3D000", Fault::Lasting,
     "Esse banco de dados não existe no servidor. Verifique o nome, ou peça que ele seja criado."},
    {"42501", Fault::Lasting, "O usuário não tem permissão para isso no servidor. Fale com quem cuida dele."},
    {"25006", Fault::Lasting,
     "O servidor só aceita leitura, como uma réplica. Informe o endereço do servidor principal."},
    {"58", Fault::Lasting, "O disco do servidor falhou. Fale com quem cuida dele."},
    {"23", Fault::Lasting, AgainstTheRules},
};

std::string CauseOf(const ServerState& known)
{
    std::string cause(known.cause);
    if (const std::size_t at = cause.find(PasswordsFile); at != std::string::npos)
        cause.replace(at, PasswordsFile.size(), system::ShownPasswordsFile());
    return cause;
}

std::string MessageOf(const std::runtime_error& cause)
{
    if (const auto* reported = dynamic_cast<const soci::soci_error*>(&cause))
        return reported->get_error_message();
    return cause.what();
}

/// Nothing where no server has reported it; without its client none has been asked.
std::optional<std::string> StateOnServer(const std::runtime_error& cause)
{
    const ServerClient* client = LoadedServerClient();
    return client != nullptr ? client->StateOf(cause) : std::nullopt;
}

std::string Opening(const std::string& path) { return "Falha no banco de dados \"" + path + "\".\r\n"; }

} // namespace

bool IsPassing(Fault fault)
{
    switch (fault) {
    case Fault::ConnectionLost:
    case Fault::Collision:
    case Fault::Locked:
    case Fault::Shortage: return true;
    case Fault::Lasting:
    case Fault::InDoubt: break;
    }
    return false;
}

DatabaseFailure ServerFailure(const std::string& path, std::string_view state, const std::string& reported)
{
    for (const ServerState& known : ServerStates) {
        if (!state.starts_with(known.state))
            continue;
        std::string cause = CauseOf(known);
        return {WithDetail(Opening(path).append(cause), reported), known.fault, std::move(cause)};
    }
    return DatabaseFailure(WithDetail(Opening(path).append(Refused), reported));
}

DatabaseFailure FileFailure(const std::string& path, int code, const std::string& reported)
{
    // What stands in the higher bits tells more than the causes here do.
    constexpr int Primary = 0xFF;
    for (const FileResult& known : FileResults) {
        if (known.code == (code & Primary))
            return {WithDetail(Opening(path).append(known.cause), reported), known.fault,
                    std::string(known.cause)};
    }
    return DatabaseFailure(WithDetail(Opening(path).append(Refused), reported));
}

DatabaseFailure LostConnection(const std::string& path)
{
    return {Opening(path).append(Lost), Fault::ConnectionLost, std::string(Lost)};
}

DatabaseFailure UnwritableFile(const std::string& path, const std::error_code& cause)
{
    if (cause == std::errc::file_exists)
        return DatabaseFailure("O arquivo \"" + path
                               + "\" já existe. Escolha outro nome ou apague o arquivo.");
    const std::string text = "O arquivo \"" + path + "\" não pode ser gravado. " + AdviceFor(cause);
    return {WithDetail(text, cause.message()), system::IsWantOfRoom(cause) ? Fault::Shortage : Fault::Lasting,
            text};
}

DatabaseFailure TranslatedFailure(const std::string& path, const std::runtime_error& cause)
{
    const std::string message = MessageOf(cause);
    if (const auto state = StateOnServer(cause))
        return ServerFailure(path, *state, message);
    if (const auto* reported = dynamic_cast<const soci::sqlite3_soci_error*>(&cause))
        return FileFailure(path, reported->result(), message);
    if (const auto* refused = dynamic_cast<const std::filesystem::filesystem_error*>(&cause))
        return UnwritableFile(path, refused->code());
    if (dynamic_cast<const Interrupted*>(&cause) != nullptr)
        return {Opening(path).append(Stopped), Fault::Lasting, std::string(Stopped)};
    return DatabaseFailure(WithDetail(Opening(path).append(Refused), message));
}

} // namespace kova::family
