#include "family/business/appointments/appointment_history.hpp"

#include "family/data/archive/audit_archive.hpp"
#include "family/data/audit/archived_part.hpp"
#include "family/data/sources/data_source.hpp"
#include "tools/agenda-data/commands.hpp"

namespace kova::data {

namespace {

std::string Shown(const std::string& value) { return value.empty() ? "(vazio)" : value; }

void Write(const family::HistoryLine& line, std::ostream& output)
{
    output << line.moment << "  " << line.operation << " por " << line.user;
    if (!line.desk.empty())
        output << " no posto " << line.desk;
    output << "\n";
    for (const family::FieldHistory& field : line.fields)
        output << "    " << field.caption << ": " << Shown(field.before) << " -> " << Shown(field.after)
               << "\n";
}

void TellMissingArchive(family::Database& database, std::ostream& error)
{
    const std::string told = family::ToldArchive(database);
    if (!told.empty())
        error << told << " Ele não foi encontrado; informe-o com --archive.\n";
}

int Run(const Call& call, Surroundings& surroundings)
{
    const long long number = call.Number(1);
    const std::unique_ptr<family::Database> database = family::OpenNewestForReading(call.Operand(0));
    const auto archive = family::OpenArchive(*database, call.Option("--archive"));
    const std::vector<family::HistoryLine> history = family::HistoryOf(*database, number, archive.get());
    for (const family::HistoryLine& line : history)
        Write(line, surroundings.output);
    if (!history.empty())
        return 0;
    surroundings.error << "A auditoria não conhece o agendamento " << number << ".\n";
    if (!archive)
        TellMissingArchive(*database, surroundings.error);
    return 1;
}

} // namespace

const Command HistoryCommand{
    {"history",
     "Conta quem gravou um agendamento, quando, em que posto, e o que havia antes e\n"
     "depois; também de um agendamento excluído, e do que está no arquivo da auditoria.",
     {"BANCO", "NÚMERO"},
     {{"--archive", "ARQUIVO", "O arquivo da auditoria (padrão: onde foi gravado, ou ao lado do banco)."}}},
    Run,
};

} // namespace kova::data
