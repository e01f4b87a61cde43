#include "tools/agenda-data/command_line.hpp"

#include <charconv>
#include <limits>
#include <string_view>

namespace kova::data {

namespace {

long long ReadCount(std::string_view option, std::string_view text, long long most)
{
    long long count = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    if (error != std::errc() || stop != text.data() + text.size() || count < 1 || count > most)
        throw UsageError("O valor \"" + std::string(text) + "\" de " + std::string(option)
                         + " não é um número inteiro de 1 a " + std::to_string(most) + ".");
    return count;
}

Date ReadDate(std::string_view text)
{
    const auto date = ParseDate(text);
    if (!date || date->year < 1900 || date->year > 2999)
        throw UsageError("A data \"" + std::string(text)
                         + "\" não é válida. Informe dd/mm/aaaa, de 01/01/1900 a 31/12/2999.");
    return *date;
}

void ReadOption(Options& options, std::string_view option, std::string_view value)
{
    if (option == "--date" && options.command != Command::Check)
        options.date = ReadDate(value);
    else if (option == "--customers" && options.command == Command::Generate)
        options.customers = static_cast<int>(ReadCount(option, value, 10000000));
    else if (option == "--appointments" && options.command == Command::Generate)
        options.appointments = ReadCount(option, value, 100000000);
    else
        throw UsageError("A opção " + std::string(option) + " não existe neste comando.");
}

Command ReadCommand(std::string_view word)
{
    if (word == "demo")
        return Command::Demo;
    if (word == "generate")
        return Command::Generate;
    if (word == "check")
        return Command::Check;
    if (word == "--help" || word == "-h")
        return Command::Help;
    if (word == "--version")
        return Command::Version;
    throw UsageError("O comando \"" + std::string(word) + "\" não existe.");
}

} // namespace

Options ParseCommandLine(std::span<const char* const> arguments, Date today)
{
    if (arguments.empty())
        throw UsageError("Informe um comando.");
    Options options;
    options.date = today;
    options.command = ReadCommand(arguments[0]);
    if (options.command == Command::Help || options.command == Command::Version)
        return options;
    for (std::size_t at = 1; at < arguments.size(); ++at) {
        const std::string_view word = arguments[at];
        if (word.substr(0, 2) != "--") {
            if (!options.file.empty())
                throw UsageError("Informe um só arquivo; \"" + std::string(word) + "\" sobra.");
            options.file = word;
            continue;
        }
        if (at + 1 == arguments.size())
            throw UsageError("Falta o valor da opção " + std::string(word) + ".");
        ReadOption(options, word, arguments[++at]);
    }
    if (options.file.empty())
        throw UsageError("Informe o arquivo do banco de dados.");
    return options;
}

} // namespace kova::data
