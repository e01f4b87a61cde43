#pragma once

#include "agenda/contracts/widgets/form_design.hpp"
#include "agenda/shared/dialog_design.hpp"

#include <vector>

namespace kova::agenda {

// Design pieces of the record forms: sections with bold heads, boxes of several kinds, two buttons. Places
// and lengths are twips of the form's inner area.

namespace medidas_da_ficha {
using namespace medidas_do_dialogo;
inline constexpr Twips BordaDireita = 11920;
inline constexpr Twips LarguraInterna = BordaDireita + Margem;
/// From a section's head to the captions of its first row.
inline constexpr Twips PassoDaSecao = 375;
} // namespace medidas_da_ficha

/// The header with its title, as wide as the form.
ControlDesign CabecalhoDaFicha(const char* titulo);
/// A section's head.
ControlDesign SecaoDaFicha(const char* nome, const char* texto, Twips topo);
/// A box for a code, which searches whatever its length.
ControlDesign CampoDeCodigo(const char* nome, Twips esquerda, Twips linha, Twips largura);
/// A text box that takes up to `limite` characters.
ControlDesign CampoDeTexto(const char* nome, Twips esquerda, Twips linha, Twips largura, int limite);
/// A box that only shows what a lookup found. Tab passes it by: booking takes no key for it.
ControlDesign CampoSomenteLeitura(const char* nome, Twips esquerda, Twips linha, Twips largura, int limite);
/// A box whose caption names another one too.
ControlDesign ComNomeAcessivel(ControlDesign campo, const char* nome);
/// The legend of required fields and the two buttons. Ctrl+S presses the first; Escape presses the second,
/// but in a detail view the first, which leaves there.
std::vector<ControlDesign> RodapeDaFicha(Twips topo);

} // namespace kova::agenda
