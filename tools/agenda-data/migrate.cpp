#include "family/data/copies/database_migration.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/migrations/current_migrations.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/shown_work.hpp"
#include "tools/agenda-data/told_migration.hpp"

namespace kova::data {

namespace {

std::optional<std::string> CopyAskedFor(const Call& call)
{
    const std::optional<std::string> copy = call.Option("--backup");
    if (copy && !family::IsServer(call.Operand(0)))
        call.Refuse("--backup é só para um servidor: a cópia de um arquivo fica ao lado dele.");
    return copy;
}

int Run(const Call& call, Surroundings& surroundings)
{
    const std::string& source = call.Operand(0);
    const family::MigrationReport report = family::MigrateDatabase(
        source, CopyAskedFor(call), family::CurrentMigrations(), ShownWork(surroundings.error, "Cópia"));
    if (report.before == report.after) {
        surroundings.output << "O banco de dados já está na versão " << report.after << ".\n";
        return 0;
    }
    TellMigration(source, report, surroundings.output, surroundings.error);
    return 0;
}

} // namespace

const Command MigrateCommand{
    {"migrate",
     "Atualiza o banco para a versão deste programa, depois de o copiar: um arquivo para o\n"
     "lado dele, um servidor para um arquivo novo. Os postos esperam enquanto isso.",
     {"BANCO"},
     {{"--backup", "ARQUIVO", "A cópia de um servidor (padrão: na pasta atual, com o nome do banco)."}}},
    Run,
};

} // namespace kova::data
