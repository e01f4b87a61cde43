#include "host/session/shop.hpp"

#include <stdexcept>
#include <string_view>
#include <vector>

namespace kova::host {

namespace {

/// Calls a method of the database component, which answers 0 or leaves its reason.
void Do(Component& database, std::string_view method, std::vector<Argument> arguments = {})
{
    if (database.Call(method, std::move(arguments)).ToLong() != 0)
        throw std::runtime_error(database.Get("DescricaoDoErro").ToText());
}

} // namespace

Shop OpenShop(ComponentService& components, bool makeDemonstration, const std::string& today)
{
    const ComponentRef database = components.CreateObject("KOVA_N_Dados.clsBanco");
    // Its folder is there: the register of components lies in it.
    if (makeDemonstration && !database->Get("Existe").ToBoolean())
        Do(*database, "CriarDemonstracao", {today});
    Do(*database, "Abrir");
    return {database->Get("NomeFantasia").ToText(), database->Get("Atualizacao").ToText(),
            database->Get("TemUsuarios").ToBoolean(), database->Get("Demonstracao").ToBoolean()};
}

} // namespace kova::host
