#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

namespace kova::agenda {

/// Caption, sizes and colours of frmMensagem.
const FormDesign& DesenhoDefrmMensagem();

} // namespace kova::agenda
