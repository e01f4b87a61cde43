#pragma once

#include "agenda/contracts/widgets.hpp"

#include <vector>

namespace kova::agenda {

/// The wait plate "picMensagem" and its line of text, as every form that has one designs it: hidden.
std::vector<ControlDesign> DesenhoDaPlacaDeEspera();

/// Brings the plate to the front, in the middle of the form's inner area.
void CentralizarPlacaDeEspera(Form& formulario, PictureBox& picMensagem);

/// Shows the plate of a record, date or search form and waits one second, or hides it. Does nothing while
/// the form is not visible. The form takes no input while the plate is on show.
void ExibirOcultarPlacaDeEspera(Form& formulario, PictureBox& picMensagem, bool Exibir);

} // namespace kova::agenda
