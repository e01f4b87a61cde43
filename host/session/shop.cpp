#include "host/session/shop.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "system/path_text.hpp"

#include <stdexcept>

namespace kova::host {

namespace fs = std::filesystem;

namespace {

void MakeFolder(const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        throw std::runtime_error(
            WithDetail("A pasta \"" + system::TextOf(folder)
                           + "\" não pôde ser criada. Verifique as permissões, ou informe com --database um "
                             "banco de dados de outra pasta.",
                       error.message()));
}

/// Calls a method of the database component, which answers 0 or leaves its reason.
void Do(Component& database, std::string_view method, std::vector<Argument> arguments = {})
{
    if (database.Call(method, std::move(arguments)).ToLong() != 0)
        throw std::runtime_error(database.Get("DescricaoDoErro").ToText());
}

} // namespace

Shop OpenShop(ComponentService& components, const fs::path& path, bool makeDemonstration,
              const std::string& today)
{
    const ComponentRef database = components.CreateObject("KOVA_N_Dados.clsBanco");
    if (makeDemonstration && !database->Get("Existe").ToBoolean()) {
        MakeFolder(path.parent_path());
        Do(*database, "CriarDemonstracao", {today});
    }
    Do(*database, "Abrir");
    return {database->Get("NomeFantasia").ToText(), database->Get("Atualizacao").ToText(),
            database->Get("TemUsuarios").ToBoolean(), database->Get("Demonstracao").ToBoolean()};
}

} // namespace kova::host
