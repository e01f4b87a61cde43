#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

namespace kova::agenda {

// Design pieces of the forms that open over the list: a header band, rows of boxes with their captions above,
// buttons at the bottom right. Places and lengths are twips of the form's inner area.

namespace medidas_do_dialogo {
inline constexpr Twips AlturaDoCabecalho = 795;
inline constexpr Twips Margem = 335;
/// Between two boxes of a row.
inline constexpr Twips Vao = 125;
inline constexpr Twips AlturaDoRotulo = 255;
inline constexpr Twips AlturaDoCampo = 510;
/// From the captions of a row to those of the next one.
inline constexpr Twips PassoDasLinhas = AlturaDoRotulo + AlturaDoCampo + 120;
inline constexpr Twips LarguraDoBotao = 1560;
/// What the frame of a window adds.
inline constexpr Twips Moldura = 90;
inline constexpr Twips MolduraETitulo = 435;
} // namespace medidas_do_dialogo

/// The header band with its title.
ControlDesign CabecalhoDoDialogo(const char* titulo, Twips largura);
/// The caption above a box, with the mnemonic that leads to it; `linha` is the top of the row's captions.
ControlDesign RotuloDeCampo(const char* nome, const char* texto, const char* campo, Twips esquerda,
                            Twips linha);
/// A box of a row, below its caption.
ControlDesign CaixaDeCampo(WidgetKind especie, const char* nome, Twips esquerda, Twips linha, Twips largura);
/// The legend of required fields, left of the buttons; `topo` is theirs.
ControlDesign LegendaDeCamposObrigatorios(Twips topo);

} // namespace kova::agenda
