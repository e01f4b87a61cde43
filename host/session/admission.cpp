#include "host/session/admission.hpp"

#include "host/arguments/call.hpp"
#include "host/session/shop.hpp"
#include "host/sign_in/door.hpp"

namespace kova::host {

bool Pretends(const Options& options) { return !options.user.empty() || options.date || options.time; }

bool Admit(Door& door, const Shop& shop, const Options& options, Outlet outlet)
{
    if (options.isTyped && Pretends(options) && (shop.hasUsers || !shop.isFictional))
        throw arguments::BadArguments(
            "As opções --user, --date e --time só valem em lojas de demonstração, que \"agenda-data demo\" "
            "cria. Nesta loja entra quem está no posto, com a data e a hora do relógio: abra o "
            "programa sem elas.");
    if (shop.hasUsers && (outlet != Outlet::Window || options.firstPaint))
        throw arguments::BadArguments(
            "Esta loja tem usuários, e sem a janela do programa ninguém pode entrar "
            "nela. Abra o programa em uma tela, sem --picture e sem --first-paint.");
    return door.Enter();
}

} // namespace kova::host
