#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

namespace kova::agenda {

/// Captions, places, sizes and colours of frmPesquisaDeServicos.
const FormDesign& DesenhoDefrmPesquisaDeServicos();

} // namespace kova::agenda
