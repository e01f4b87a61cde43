#pragma once

#include "agenda/contracts/widgets/form_design.hpp"

#include <vector>

namespace kova::agenda {

// Design pieces of the record forms: sections with bold heads, rows of boxes with their captions above, two
// buttons at the bottom right. Places and lengths are twips of the form's inner area.

namespace medidas_da_ficha {
inline constexpr Twips AlturaDoCabecalho = 795;
inline constexpr Twips Margem = 335;
/// Between two boxes of a row.
inline constexpr Twips Vao = 125;
inline constexpr Twips BordaDireita = 11920;
inline constexpr Twips LarguraInterna = BordaDireita + Margem;
inline constexpr Twips AlturaDoRotulo = 255;
inline constexpr Twips AlturaDoCampo = 510;
/// From a section's head to the captions of its first row.
inline constexpr Twips PassoDaSecao = 375;
/// From the captions of a row to those of the next one.
inline constexpr Twips PassoDasLinhas = AlturaDoRotulo + AlturaDoCampo + 120;
inline constexpr Twips LarguraDoBotao = 1560;
/// What the frame of a window adds.
inline constexpr Twips Moldura = 90;
inline constexpr Twips MolduraETitulo = 435;
} // namespace medidas_da_ficha

/// The header with its title, as wide as the form.
ControlDesign CabecalhoDaFicha(const char* titulo);
/// A section's head.
ControlDesign SecaoDaFicha(const char* nome, const char* texto, Twips topo);
/// The caption above a box, with the mnemonic that leads to it.
ControlDesign RotuloDaFicha(const char* nome, const char* texto, const char* campo, Twips esquerda,
                            Twips linha);
/// A box of a row; `linha` is the top of the row's captions.
ControlDesign CampoDaFicha(WidgetKind especie, const char* nome, Twips esquerda, Twips linha, Twips largura);
/// A box for a code, which searches whatever its length.
ControlDesign CampoDeCodigo(const char* nome, Twips esquerda, Twips linha, Twips largura);
/// A text box that takes up to `limite` characters.
ControlDesign CampoDeTexto(const char* nome, Twips esquerda, Twips linha, Twips largura, int limite);
/// A box that only shows what a lookup found. Tab passes it by: booking takes no key for it.
ControlDesign CampoSomenteLeitura(const char* nome, Twips esquerda, Twips linha, Twips largura, int limite);
/// A box whose caption names another one too.
ControlDesign ComNomeAcessivel(ControlDesign campo, const char* nome);
/// The legend of required fields and the two buttons. Escape presses the second, Ctrl+S the first.
std::vector<ControlDesign> RodapeDaFicha(Twips topo);

} // namespace kova::agenda
