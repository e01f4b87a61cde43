#include "tools/agenda-data/commands.hpp"

namespace kova::data {

namespace {

/// In the order of the help.
constexpr const Command* Commands[] = {
    &CreateCommand, &DemoCommand,   &GenerateCommand, &MigrateCommand, &CheckCommand,   &ImportCommand,
    &ExportCommand, &BackupCommand, &RestoreCommand,  &CopyCommand,    &HistoryCommand, &UndeleteCommand,
};

void WriteIndented(std::ostream& output, std::string_view text)
{
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        output << "      " << text.substr(0, end) << "\n";
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
}

void WriteHelp(const Command& command, std::ostream& output)
{
    output << "  agenda-data " << command.name;
    for (const std::string_view operand : command.operands)
        output << " " << operand;
    for (const Option& option : command.options)
        output << " [" << option.name << (option.value.empty() ? "" : " ") << option.value << "]";
    output << "\n";
    WriteIndented(output, command.help);
}

void WriteHelp(std::ostream& output)
{
    output << "agenda-data: administração dos dados da agenda\n\nUso:\n";
    for (const Command* command : Commands)
        WriteHelp(*command, output);
    output
        << "  agenda-data --help\n"
           "  agenda-data --version\n"
           "\n"
           "BANCO é o caminho de um arquivo ou o endereço de um banco em um servidor PostgreSQL, como\n"
           "postgresql://usuario@servidor/loja ou postgresql:///?service=NOME; a senha fica no arquivo de\n"
           "senhas (~/.pgpass), nunca no endereço. O banco em um servidor já existe, e está vazio para\n"
           "o criar. Um arquivo que já existe nunca é substituído.\n"
           "\n"
           "Resultado: 0 concluído; 1 os dados não podem ser lidos ou gravados; 2 linha de comando\n"
           "incorreta.\n";
}

const Command& FindCommand(std::string_view name)
{
    for (const Command* command : Commands) {
        if (command->name == name)
            return *command;
    }
    throw UsageError("O comando \"" + std::string(name) + "\" não existe.");
}

int Carry(std::span<const char* const> arguments, Surroundings& surroundings)
{
    if (arguments.empty())
        throw UsageError("Informe um comando.");
    const std::string_view word = arguments.front();
    if (word == "--help" || word == "-h") {
        WriteHelp(surroundings.output);
        return 0;
    }
    if (word == "--version") {
        surroundings.output << "agenda-data " KOVARIS_VERSION "\n";
        return 0;
    }
    const Command& command = FindCommand(word);
    return command.run(ReadCall(command, arguments.subspan(1)), surroundings);
}

} // namespace

int Run(std::span<const char* const> arguments, DateTime now, std::ostream& output, std::ostream& error)
{
    Surroundings surroundings{output, error, now};
    try {
        return Carry(arguments, surroundings);
    } catch (const UsageError& usage) {
        error << "agenda-data: " << usage.what() << "\n";
        WriteHelp(error);
        return 2;
    } catch (const std::exception& failure) {
        error << "agenda-data: " << failure.what() << "\n";
        return 1;
    }
}

} // namespace kova::data
