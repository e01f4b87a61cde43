#include "family/demo/shop.hpp"
#include "tools/agenda-data/commands.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    const Date date = call.Day("--date").value_or(surroundings.now.date);
    family::CreateShop(call.Operand(0), family::DemonstrationPlan(date));
    surroundings.output << "Banco de dados criado: " << call.Operand(0) << "\n";
    return 0;
}

} // namespace

const Command DemoCommand{
    {"demo",
     "Cria a loja de demonstração, com agendamentos em torno da data (padrão: hoje); a\n"
     "mesma data dá sempre o mesmo conteúdo.",
     {"BANCO"},
     {{"--date", "dd/mm/aaaa", "O dia em torno do qual há agendamentos (padrão: hoje)."}}},
    Run,
};

} // namespace kova::data
