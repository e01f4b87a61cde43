#include "family/business/appointments/appointment_restoration.hpp"
#include "family/data/sources/data_source.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/told_migration.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    const long long number = call.Number(1);
    BringFileUpToDate(call.Operand(0), surroundings.error);
    const std::shared_ptr<family::Database> database = family::OpenDatabase(call.Operand(0));
    const family::WriteAnswer answer =
        family::RestoreAppointment(*database, number, AuthorOf(call, surroundings));
    if (!answer.IsDone()) {
        surroundings.error << "agendamento " << number << ": " << answer.text << "\n";
        return 1;
    }
    surroundings.output << "Agendamento restaurado: " << number << "\n";
    return 0;
}

} // namespace

const Command UndeleteCommand{
    {"undelete",
     "Restaura um agendamento excluído, com o mesmo número e como estava; NOME fica na\n"
     "auditoria (padrão: o usuário do computador).",
     {"BANCO", "NÚMERO"},
     {{"--user", "NOME", "Quem restaura (padrão: o usuário do computador)."}}},
    Run,
};

} // namespace kova::data
