#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

namespace kova::agenda {

/// Captions, places, sizes and colours of frmPesquisaDeClientes.
const FormDesign& DesenhoDefrmPesquisaDeClientes();

} // namespace kova::agenda
