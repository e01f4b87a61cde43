#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

namespace kova::agenda {

/// Captions, sizes and colours of frmLista. Form_Resize places what stands outside the panel.
const FormDesign& DesenhoDefrmLista();

} // namespace kova::agenda
