#include "family/data/stores/appointment_rows.hpp"

#include "family/data/engine/fold_text.hpp"

namespace kova::family {

void AppointmentRow::Compose()
{
    textoDeBusca.clear();
    if (tipoDoAgendamento == 1)
        textoDeBusca = FoldText(nomeDoCliente) + "\n" + FoldText(nomeDoAnimal);
}

} // namespace kova::family
