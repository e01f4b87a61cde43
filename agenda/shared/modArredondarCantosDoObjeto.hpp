#pragma once

#include "agenda/contracts/value.hpp"

#include <cstdint>

namespace kova::agenda {

/// Rounds the corners of a window: Raio is the width and the height of each corner's ellipse in pixels, twice
/// its radius. On the system of square corners it does nothing. A failure of the version component is
/// reported and leaves the corners square.
void ArredondarCantosDoObjeto(Long& Janela, std::uint8_t& Raio);

} // namespace kova::agenda
