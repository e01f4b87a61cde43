#include "tools/agenda-data/commands.hpp"

#include "family/data/engine/failure_words.hpp"
#include "family/data/engine/secrets_in_text.hpp"
#include "family/data/engine/server_protection.hpp"
#include "system/user_folders.hpp"

#include <algorithm>

namespace kova::data {

namespace {

/// In the order of the help.
constexpr const Command* Commands[] = {
    &CreateCommand,      &DemoCommand,          &GenerateCommand,     &MigrateCommand, &CheckCommand,
    &ImportCommand,      &UndoImportCommand,    &ExportCommand,       &BackupCommand,  &RestoreCommand,
    &CopyCommand,        &HistoryCommand,       &UndeleteCommand,     &PersonCommand,  &ForgetCommand,
    &ServerRolesCommand, &ResetPasswordCommand, &ArchiveAuditCommand,
};

/// What else the help tells; the program's description only refers to it.
const std::string& Closing()
{
    static const std::string closing =
        "BANCO é o caminho de um arquivo ou o endereço de um banco em um servidor PostgreSQL, como\n"
        "postgresql://usuario@servidor/loja ou postgresql:///?service=NOME; a senha fica no arquivo de\n"
        "senhas ("
        + std::string(system::ShownPasswordsFile())
        + "), nunca no endereço.\n"
          "O banco em um servidor já existe, e está vazio para o criar. Um arquivo que já existe nunca\n"
          "é substituído.\n"
          "\n"
          "Resultado: 0 concluído; 1 os dados não podem ser lidos ou gravados; 2 linha de comando\n"
          "incorreta.";
    return closing;
}

arguments::Program ThisProgram()
{
    arguments::Program program{{"agenda-data", "agenda-data: administração dos dados da agenda"},
                               "agenda-data " KOVARIS_VERSION,
                               Closing()};
    for (const Command* command : Commands)
        program.commands.push_back(&command->words);
    return program;
}

int Carry(std::span<const std::string> words, Surroundings& surroundings)
{
    const arguments::Program program = ThisProgram();
    const arguments::Asked asked = arguments::Read(program, words);
    if (asked.answer) {
        surroundings.output << *asked.answer;
        return 0;
    }
    const auto* command = *std::find_if(std::begin(Commands), std::end(Commands),
                                        [&](const Command* one) { return &one->words == asked.command; });
    for (std::size_t at = 0; at < command->words.operands.size(); ++at) {
        if (const auto warning = family::WarningOfAddress(asked.call.Operand(at)))
            surroundings.error << "Aviso: " << *warning << "\n";
    }
    return command->run(asked.call, surroundings);
}

} // namespace

int Run(std::span<const std::string> words, DateTime now, std::ostream& output, std::ostream& error,
        const Input& input, bool isByComputersClock)
{
    Surroundings surroundings{output, error, now, input, isByComputersClock};
    try {
        return Carry(words, surroundings);
    } catch (const arguments::BadArguments& refusal) {
        error << "agenda-data: " << family::WithoutSecrets(refusal.what()) << "\n";
        return 2;
    } catch (const std::exception& failure) {
        error << "agenda-data: " << family::WithoutSecrets(family::WordsFor(failure)) << "\n";
        return 1;
    }
}

} // namespace kova::data
