#include "family/data/store_check.hpp"
#include "tools/agenda-data/commands.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    const family::StoreReport report = family::CheckStore(call.Operand(0));
    for (const family::TableCount& table : report.tables)
        surroundings.output << table.name << ": " << table.rows << "\n";
    surroundings.output << "versão do esquema: " << report.version << "\n";
    for (const std::string& problem : report.problems)
        surroundings.error << problem << "\n";
    if (!report.problems.empty())
        return 1;
    surroundings.output << "O banco de dados está íntegro.\n";
    return 0;
}

} // namespace

const Command CheckCommand{
    "check", {"BANCO"}, {}, "verifica se o banco pode ser aberto e se está íntegro, e conta o que contém",
    Run,
};

} // namespace kova::data
