#include "agenda/list/module_reset.hpp"

#include "agenda/list/frmLista.hpp"
#include "agenda/shared/modPrincipal.hpp"

#include <utility>

namespace kova::agenda {

void ReiniciarModulo()
{
    const auto listas = std::exchange(Principal.ListasAbertas, {});
    for (const auto& lista : listas)
        lista->Formulario->Unload();
    Principal = modPrincipal();
}

} // namespace kova::agenda
