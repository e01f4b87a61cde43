#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/widgets.hpp"

#include <initializer_list>

namespace kova::agenda {

// What both record forms do with a write and its answer. Failures go up to the caller.

/// Calls Adicionar, Alterar or Excluir, by the form's operation; see `resultado_da_gravacao` for the answer,
/// which comes as the component gave it. A detail view writes nothing and answers Concluida.
Value Gravar(Component& agenda, Integer tipoDeOperacao);

/// A technical failure goes to the error screen, a refusal of the whole record into a critical box. Any other
/// result says nothing.
void InformarFalhaOuRecusa(Component& agenda, Integer resultado);

/// A field that the business tier may refuse: the name it has there, the label that turns red and the widget
/// that gets the focus.
struct CampoRecusavel {
    const char* nome;
    Label& rotulo;
    Widget& campo;
};

/// Puts every label back to its colour and marks the refused field, which is the first of the table that
/// carries its name. Answers that name; a name that is not in the table marks nothing.
Text MarcarCampoRecusado(Component& agenda, Form& formulario, std::initializer_list<CampoRecusavel> campos);

} // namespace kova::agenda
