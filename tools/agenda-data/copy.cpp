#include "family/data/copies/database_copy.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/shown_work.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    WriteCounts(
        surroundings.output,
        family::CopyDatabase(call.Operand(0), call.Operand(1), ShownWork(surroundings.error, "Cópia")));
    surroundings.output << "Banco de dados copiado e conferido: " << call.Operand(1) << "\n";
    return 0;
}

} // namespace

const Command CopyCommand{
    {"copy",
     "Copia uma loja para um arquivo novo ou para um banco vazio de um servidor, em\n"
     "qualquer sentido; a numeração continua de onde está.",
     {"BANCO", "BANCO_NOVO"}},
    Run,
};

} // namespace kova::data
