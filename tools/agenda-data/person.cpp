#include "family/privacy/person_files.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/customer_option.hpp"
#include "tools/agenda-data/shown_work.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    const family::Key customer = CustomerOf(call);
    const std::optional<std::string> folder = call.Option("--to");
    if (!folder)
        call.Refuse("Informe com --to a pasta em que os arquivos são gravados.");
    const family::privacy::PersonFiles files =
        family::privacy::ExportPerson(call.Operand(0), customer, *folder, AuthorOf(call, surroundings),
                                      surroundings.now, ShownWork(surroundings.error, "Auditoria"));
    surroundings.output << "Página: " << files.page << "\nJSON: " << files.json << "\n";
    return 0;
}

} // namespace

const Command PersonCommand{
    {"person",
     "Grava tudo que a loja guarda sobre um cliente em dois arquivos novos, uma página para\n"
     "ler e imprimir e um JSON, que só quem os fez pode ler.",
     {"BANCO"},
     {CustomerOption, {"--to", "PASTA", "A pasta em que os arquivos são gravados; ela já existe."}}},
    Run,
};

} // namespace kova::data
