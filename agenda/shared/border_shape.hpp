#pragma once

#include "agenda/contracts/widgets.hpp"

namespace kova::agenda {

/// Whether the version component names the system whose windows keep their square corners, in any letter
/// case. Failures go up to the caller.
bool SistemaTemCantosRetos();

/// A frame along the edge of the form's inner area, in place of round corners: the shape "lshpObj", made at
/// run time.
void AdicionarMoldura(Form& formulario);

/// What Form_Load of the record, date, search and print forms does about their border: the frame, on the
/// system of square corners only. Failures go up to the caller.
void AplicarBordaDoFormulario(Form& formulario);

} // namespace kova::agenda
