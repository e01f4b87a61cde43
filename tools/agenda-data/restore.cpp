#include "family/data/copies/database_backup.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/shown_work.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    WriteCounts(surroundings.output,
                family::RestoreDatabase(call.Operand(0), call.Operand(1), AuthorOf(call, surroundings),
                                        ShownWork(surroundings.error, "Restauração")));
    surroundings.output << "Banco de dados restaurado e conferido: " << call.Operand(1) << "\n";
    return 0;
}

} // namespace

const Command RestoreCommand{
    {"restore", "Restaura uma cópia em um banco novo, e o confere.", {"ARQUIVO", "BANCO"}},
    Run,
};

} // namespace kova::data
