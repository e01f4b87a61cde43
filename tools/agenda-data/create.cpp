#include "family/data/stores/new_shop.hpp"
#include "host/session/computer_user.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/password.hpp"

namespace kova::data {

namespace {

constexpr const char* WithPassword = "--password";

int Run(const Call& call, Surroundings& surroundings)
{
    const std::string company = call.Option("--company").value_or("");
    if (company.find_first_not_of(" \t") == std::string::npos)
        call.Refuse("Informe com --company o nome da empresa, que sai em tudo que a agenda imprime.");
    family::NewShop shop;
    shop.company.nomeFantasia = company;
    shop.user = call.Option("--user").value_or(host::NameOfThisUser());
    shop.employee = call.Option("--employee").value_or(shop.user);
    if (call.Has(WithPassword)) {
        const auto password = NewPassword(surroundings);
        if (!password)
            return 1;
        shop.password = family::HashOf(*password, family::FrontDeskCost);
    }
    family::CreateNewShop(call.Operand(0), shop);
    surroundings.output << "Banco de dados criado: " << call.Operand(0) << "\n";
    return 0;
}

} // namespace

const Command CreateCommand{
    {"create",
     "Cria uma loja que ainda não começou: a empresa, o usuário (padrão: o do computador),\n"
     "um(a) funcionário(a) (padrão: o usuário), os tipos de serviço 1 a 4, as espécies\n"
     "mais comuns e os feriados nacionais.",
     {"BANCO"},
     {{"--company", "NOME", "Nome da empresa, que precisa ser informado."},
      {"--user", "NOME", "Nome do usuário (padrão: o do computador)."},
      {WithPassword,
       {},
       "Lê uma senha, digitada duas vezes ou na primeira linha da entrada padrão: o\n"
       "usuário entra com ela e administra os usuários da loja."},
      {"--employee", "NOME", "Nome do(a) funcionário(a) (padrão: o do usuário)."}}},
    Run,
};

} // namespace kova::data
