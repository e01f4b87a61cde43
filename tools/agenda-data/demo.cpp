#include "family/demo/shop.hpp"
#include "tools/agenda-data/commands.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    const Date date = call.Day("--date", surroundings.now.date);
    family::CreateShop(call.Operand(0), family::DemonstrationPlan(date));
    surroundings.output << "Banco de dados criado: " << call.Operand(0) << "\n";
    return 0;
}

} // namespace

const Command DemoCommand{
    "demo",
    {"BANCO"},
    {{"--date", "dd/mm/aaaa"}},
    "cria a loja de demonstração, com agendamentos em torno da data (padrão: hoje); a mesma\n"
    "data dá sempre o mesmo conteúdo",
    Run,
};

} // namespace kova::data
