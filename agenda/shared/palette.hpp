#pragma once

#include "agenda/contracts/widgets/widget.hpp"

/// Every colour of the module, once. Black, white and red are the toolkits' own.
namespace kova::agenda::cores {

/// The button that does what its form is for; the message without buttons.
inline constexpr Colour Azul = Rgb(77, 143, 253);
/// The button that closes a picker.
inline constexpr Colour AzulEscuro = Rgb(0, 108, 211);
/// A button under the mouse.
inline constexpr Colour AzulDeRealce = Rgb(109, 182, 221);
/// The wait plate.
inline constexpr Colour AzulClaro = Rgb(214, 230, 255);

// Greys, from dark to light.

/// Text of a white button.
inline constexpr Colour CinzaDeTexto = Rgb(64, 64, 64);
/// Captions and heads.
inline constexpr Colour CinzaEscuro = Rgb(73, 73, 73);
/// Titles of what the panel shows.
inline constexpr Colour CinzaDeTitulo = Rgb(110, 110, 110);
/// Numbers of records in a grid; bands on paper; the black button under the mouse.
inline constexpr Colour CinzaMedio = Rgb(128, 128, 128);
/// A row's button under the mouse.
inline constexpr Colour CinzaDeRealce = Rgb(196, 196, 196);
/// A row's buttons; the list's selected row; every other row of a picker; the panel's rules.
inline constexpr Colour Cinza = Rgb(217, 217, 217);
/// Rules on paper.
inline constexpr Colour CinzaDePapel = Rgb(224, 224, 224);
/// Lines of a grid.
inline constexpr Colour CinzaDeGrade = Rgb(239, 239, 239);
/// Every other row of the list, and the others of a picker; a picker's header and its selected row.
inline constexpr Colour CinzaClaro = Rgb(242, 242, 242);
/// Headline of a grid.
inline constexpr Colour CinzaDeCabecalho = Rgb(246, 245, 245);
/// The arrows of the days under the mouse.
inline constexpr Colour CinzaDeSeta = Rgb(246, 246, 246);
/// A box that only shows.
inline constexpr Colour CinzaDeLeitura = Rgb(249, 249, 249);
/// The panel.
inline constexpr Colour CinzaDePainel = Rgb(250, 250, 250);

/// The label of a field, and of one that was refused.
inline constexpr Colour Rotulo = CinzaEscuro;
inline constexpr Colour RotuloRecusado = colours::Red;

} // namespace kova::agenda::cores
