#include "family/data/database_failure.hpp"

#include <soci/soci.h>

#include <string_view>

namespace kova::family {

namespace {

struct Translation {
    std::string_view reported;
    std::string_view cause;
};

constexpr Translation Translations[] = {
    {"is full", "O disco está cheio. Libere espaço e tente novamente; nada do que estava gravado se perdeu."},
    {"is locked", "O banco de dados está em uso por outro programa. Feche-o e tente novamente."},
    {"readonly", "O banco de dados não aceita gravação. Verifique as permissões do arquivo e da pasta."},
    {"not a database", "O arquivo não é um banco de dados. Escolha outro arquivo."},
    {"malformed", "O banco de dados está danificado. Restaure a cópia de segurança mais recente."},
    {"unable to open", "O arquivo não pode ser aberto. Verifique o caminho e as permissões da pasta."},
    {"I/O error", "O disco não respondeu à leitura ou à gravação. Verifique o disco e tente novamente."},
    {"interrupted", "O trabalho foi interrompido antes do fim; nada foi gravado."},
};

std::string MessageOf(const std::runtime_error& cause)
{
    if (const auto* reported = dynamic_cast<const soci::soci_error*>(&cause))
        return reported->get_error_message();
    return cause.what();
}

} // namespace

Failure DatabaseFailure(std::string text) { return Failure(DatabaseFailureNumber, std::move(text)); }

Failure TranslatedFailure(const std::string& path, const std::runtime_error& cause)
{
    const std::string message = MessageOf(cause);
    std::string text = "Falha no banco de dados \"" + path + "\".\r\n";
    for (const Translation& translation : Translations) {
        if (message.find(translation.reported) != std::string::npos)
            return DatabaseFailure(text.append(translation.cause) + " (" + message + ")");
    }
    return DatabaseFailure(text + message);
}

} // namespace kova::family
