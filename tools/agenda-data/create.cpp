#include "family/data/new_shop.hpp"
#include "host/computer_user.hpp"
#include "tools/agenda-data/commands.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    family::CreateNewShop(
        call.Operand(0),
        {call.Option("--company").value_or(""), call.Option("--user").value_or(host::NameOfThisUser())});
    surroundings.output << "Banco de dados criado: " << call.Operand(0) << "\n";
    return 0;
}

} // namespace

const Command CreateCommand{
    "create",
    {"BANCO"},
    {{"--company", "NOME"}, {"--user", "NOME"}},
    "cria uma loja que ainda não começou: a empresa e o usuário (padrão: o do computador), os\n"
    "tipos de serviço 1 a 4, as espécies mais comuns e os feriados nacionais",
    Run,
};

} // namespace kova::data
