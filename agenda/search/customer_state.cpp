#include "agenda/search/customer_state.hpp"

namespace kova::agenda {

Text MotivoDaRecusaDoCliente(Long situacao)
{
    const char* estado = "";
    switch (situacao) {
    case 2: estado = "inativo"; break;
    case 3: estado = "bloqueado"; break;
    case 4: estado = "excluído"; break;
    default: return {};
    }
    return "Cliente " + Text(estado)
        + ". Para mais informações, entre em contato com o departamento financeiro.";
}

} // namespace kova::agenda
