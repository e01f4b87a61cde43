#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

namespace kova::agenda {

/// Captions, places, sizes, limits and colours of frmFichaSimplificada.
const FormDesign& DesenhoDefrmFichaSimplificada();

} // namespace kova::agenda
