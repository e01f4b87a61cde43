#include "family/data/appointment_rows.hpp"

#include "family/data/fold_text.hpp"

namespace kova::family {

void AppointmentRow::Compose()
{
    textoDeBusca.clear();
    if (tipoDoAgendamento == 1)
        textoDeBusca = FoldText(nomeDoCliente) + "\n" + FoldText(nomeDoAnimal);
}

} // namespace kova::family
