#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

namespace kova::agenda {

/// Captions, sizes and colours of frmSelecionarDatas: what is booked, then the twelve rows in two columns of
/// six, in the order of their captions.
const FormDesign& DesenhoDefrmSelecionarDatas();

} // namespace kova::agenda
