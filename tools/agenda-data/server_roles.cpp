#include "family/data/sources/desk_role.hpp"
#include "tools/agenda-data/commands.hpp"

namespace kova::data {

namespace {

int Run(const Call& call, Surroundings& surroundings)
{
    const std::string& address = call.Operand(0);
    const std::string role = call.Option("--role").value_or("");
    if (role.empty())
        call.Refuse("Informe com --role o papel do servidor com que os postos se conectam.");
    if (call.Has("--run")) {
        family::GiveToDesks(address, role);
        surroundings.output
            << "O papel \"" << role
            << "\" tem o que um posto precisa. A auditoria ele lê e continua; o que está nela só "
               "o dono das tabelas pode mudar.\n";
        return 0;
    }
    for (const std::string& statement : family::StatementsForDesks(address, role))
        surroundings.output << statement << ";\n";
    return 0;
}

} // namespace

const Command ServerRolesCommand{
    {"server-roles",
     "Escreve os comandos SQL que dão ao papel dos postos em um servidor o que eles precisam,\n"
     "e não mais: a auditoria eles leem e continuam, mas não mudam. Com --run, como dono das\n"
     "tabelas, faz isso. Depois de \"migrate\" é preciso de novo.",
     {"BANCO"},
     {{"--role", "NOME", "O papel com que os postos se conectam, que já existe no servidor."},
      {"--run", {}, "Roda os comandos em vez de os escrever."}}},
    Run,
};

} // namespace kova::data
