#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

namespace kova::agenda {

/// Captions, sizes and colours of frmImprimirAgenda: four filters in two rows, two buttons below them.
const FormDesign& DesenhoDefrmImprimirAgenda();

} // namespace kova::agenda
