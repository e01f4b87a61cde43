#include "family/data/copies/database_backup.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/shown_work.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    WriteCounts(
        surroundings.output,
        family::BackUpDatabase(call.Operand(0), call.Operand(1), ShownWork(surroundings.error, "Cópia")));
    surroundings.output << "Cópia feita e conferida: " << call.Operand(1) << "\n";
    return 0;
}

} // namespace

const Command BackupCommand{
    {"backup",
     "Copia o banco de um momento para um arquivo novo, também enquanto a agenda está em\n"
     "uso, e confere a cópia por uma restauração de prova.",
     {"BANCO", "ARQUIVO"}},
    Run,
};

} // namespace kova::data
