#include "tools/scenario/options.hpp"

#include "host/arguments/arguments.hpp"

#include <limits>

namespace kova::scenario {

namespace {

const arguments::Program ThisProgram{
    {"agenda-scenario",
     "Executa um roteiro contra o módulo real e imprime tudo o que atravessou as suas fronteiras.",
     {"ROTEIRO"},
     {{"--database", "FONTE", "Responde pelos componentes de referência sobre este banco."},
      {"--toolkit", "NOME", "headless, sem tela (o usual), ou qt, com mouse e teclas na tela."},
      {"--widgets", {}, "Imprime também cada escrita em um controle."},
      {"--fail-at", "K", "Falha injetada na K-ésima chamada de negócio."},
      {"--fail-widgets-at", "K", "Falha injetada no K-ésimo acesso a um controle."},
      {"--count", {}, "Imprime quantas travessias de cada tipo o roteiro faz."}}},
    "agenda-scenario " KOVARIS_VERSION,
    "Saída: 0 o roteiro chegou ao fim; 2 o roteiro está errado; 3 o módulo falhou ou quebrou uma regra."};

int CountOf(const arguments::Call& call, std::string_view option)
{
    return static_cast<int>(call.Count(option, 0, std::numeric_limits<int>::max()));
}

} // namespace

RunOptions ParseOptions(const std::vector<std::string>& words)
{
    const arguments::Asked asked = arguments::Read(ThisProgram, words);
    RunOptions options;
    options.answer = asked.answer;
    if (asked.answer)
        return options;
    options.file = asked.call.Operand(0);
    options.database = asked.call.Option("--database").value_or(options.database);
    options.toolkit = asked.call.Option("--toolkit").value_or(options.toolkit);
    options.printsWidgetWrites = asked.call.Has("--widgets");
    options.failAt = CountOf(asked.call, "--fail-at");
    options.failWidgetsAt = CountOf(asked.call, "--fail-widgets-at");
    options.printsCount = asked.call.Has("--count");
    return options;
}

} // namespace kova::scenario
