#pragma once

#include "agenda/contracts/value.hpp"

#include <cstdint>

namespace kova::agenda {

/// The system whose windows keep their square corners.
inline constexpr const char* SistemaDeCantosRetos = "Windows 8";

/// Rounds the corners of a window, with a radius in pixels. On the system of square corners it does
/// nothing. A failure of the version component is reported and leaves the corners square.
void ArredondarCantosDoObjeto(Long& Janela, std::uint8_t& Raio);

} // namespace kova::agenda
