#include "agenda/shared/modPrincipal.hpp"

#include "agenda/list/frmLista.hpp"
#include "agenda/printing/frmImprimirAgenda.hpp"

#include <utility>

namespace kova::agenda {

modPrincipal& Principal()
{
    static modPrincipal estado;
    return estado;
}

void ReiniciarModulo()
{
    const auto listas = std::exchange(Principal().ListasAbertas, {});
    for (const auto& lista : listas)
        lista->Formulario->Unload();
    Principal() = modPrincipal();
}

} // namespace kova::agenda
