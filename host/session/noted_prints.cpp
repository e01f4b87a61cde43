#include "host/session/noted_prints.hpp"

#include "agenda/contracts/failure.hpp"
#include "host/session/session_user.hpp"

namespace kova::host {

std::string NotePrint(ComponentService& components, const std::shared_ptr<SessionUser>& user,
                      const std::string& title, long long pages, const std::string& file)
{
    try {
        const ComponentRef prints = components.CreateObject("KOVA_N_Dados.clsImpressoes");
        prints->Set("DadosDoUsuario", Value(user));
        if (prints->Call("Registrar", {Text(title), static_cast<Long>(pages), Text(file)}).ToInteger() == 0)
            return {};
        return prints->Get("DescricaoDoErro").ToText();
    } catch (const Failure& failure) {
        return failure.Description();
    }
}

} // namespace kova::host
