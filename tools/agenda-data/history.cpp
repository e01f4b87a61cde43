#include "family/business/appointments/appointment_history.hpp"

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

int Run(const Call& call, Surroundings& surroundings)
{
    const long long number = call.Number(1);
    const std::unique_ptr<family::Database> database = family::OpenNewestForReading(call.Operand(0));
    const std::vector<family::HistoryLine> history = family::HistoryOf(*database, number);
    for (const family::HistoryLine& line : history)
        Write(line, surroundings.output);
    if (!history.empty())
        return 0;
    surroundings.error << "A auditoria não conhece o agendamento " << number << ".\n";
    return 1;
}

} // namespace

const Command HistoryCommand{
    {"history",
     "Conta quem gravou um agendamento, quando, em que posto, e o que havia antes e\n"
     "depois; também de um agendamento excluído.",
     {"BANCO", "NÚMERO"}},
    Run,
};

} // namespace kova::data
