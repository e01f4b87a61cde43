#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova::agenda {

/// Colours of the forms.
namespace cores {
inline constexpr Colour Rotulo = Rgb(73, 73, 73);
/// A label whose field was refused.
inline constexpr Colour RotuloRecusado = colours::Red;
} // namespace cores

} // namespace kova::agenda
