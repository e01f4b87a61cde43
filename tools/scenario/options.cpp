#include "tools/scenario/options.hpp"

#include <charconv>
#include <stdexcept>

namespace kova::scenario {

namespace {

/// The word behind an option.
const std::string& ValueOf(const std::vector<std::string>& words, std::size_t& at)
{
    if (at + 1 >= words.size())
        throw std::invalid_argument("A opção " + words[at] + " pede um valor.");
    return words[++at];
}

int NumberOf(const std::vector<std::string>& words, std::size_t& at)
{
    const std::string option = words[at];
    const std::string& word = ValueOf(words, at);
    int number = 0;
    const auto read = std::from_chars(word.data(), word.data() + word.size(), number);
    if (read.ec != std::errc() || read.ptr != word.data() + word.size() || number < 1)
        throw std::invalid_argument("A opção " + option + " pede um número a partir de 1, não '" + word
                                    + "'.");
    return number;
}

} // namespace

RunOptions ParseOptions(const std::vector<std::string>& words)
{
    RunOptions options;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const std::string& word = words[at];
        if (word == "--database")
            options.database = ValueOf(words, at);
        else if (word == "--toolkit")
            options.toolkit = ValueOf(words, at);
        else if (word == "--widgets")
            options.printsWidgetWrites = true;
        else if (word == "--fail-at")
            options.failAt = NumberOf(words, at);
        else if (word == "--fail-widgets-at")
            options.failWidgetsAt = NumberOf(words, at);
        else if (word == "--count")
            options.printsCount = true;
        else if (word == "--help" || word == "-h")
            options.help = true;
        else if (word.starts_with("-"))
            throw std::invalid_argument("Opção desconhecida: " + word + ". Veja agenda-scenario --help.");
        else if (options.file.empty())
            options.file = word;
        else
            throw std::invalid_argument("Só um roteiro por vez: '" + word + "' sobra.");
    }
    if (options.file.empty() && !options.help)
        throw std::invalid_argument("Falta o roteiro. Veja agenda-scenario --help.");
    return options;
}

std::string HelpText()
{
    return "Uso: agenda-scenario [opções] ROTEIRO\n"
           "\n"
           "Executa um roteiro contra o módulo real e imprime tudo o que atravessou as suas fronteiras.\n"
           "\n"
           "  --database FONTE      responde pelos componentes de referência sobre este banco\n"
           "  --toolkit NOME        headless, sem tela (o usual), ou qt, com mouse e teclas na tela\n"
           "  --widgets             imprime também cada escrita em um controle\n"
           "  --fail-at K           falha injetada na K-ésima chamada de negócio\n"
           "  --fail-widgets-at K   falha injetada no K-ésimo acesso a um controle\n"
           "  --count               imprime quantas travessias de cada tipo o roteiro faz\n"
           "  --help                esta ajuda\n"
           "\n"
           "Saída: 0 o roteiro chegou ao fim; 2 o roteiro está errado; 3 o módulo falhou ou quebrou uma "
           "regra.\n";
}

} // namespace kova::scenario
