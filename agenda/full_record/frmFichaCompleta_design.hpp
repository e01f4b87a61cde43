#pragma once

#include "agenda/contracts/widgets.hpp"

namespace kova::agenda {

/// The form's controls, captions, sizes and colours.
const FormDesign& DesenhoDefrmFichaCompleta();

/// Widths of the combo "Reagendar": alone on its place, which it then fills and so covers the number and
/// the unit, and beside them.
inline constexpr Twips LarguraDeReagendarSozinho = 3610;
inline constexpr Twips LarguraDeReagendarComUnidade = 1005;

} // namespace kova::agenda
