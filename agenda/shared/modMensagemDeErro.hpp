#pragma once

#include "agenda/contracts/business_services.hpp"

namespace kova::agenda {

/// Shows number, description and place on the family's error screen. Returns when the user has closed
/// it. A failure of the error screen itself goes up to the caller.
void MensagemDeErro(Value Numero, Value Descricao, Value Local);

/// Passes on what a business object tells about its own technical failure: NumeroDoErro,
/// DescricaoDoErro and LocalDoErro, read in this order.
void MensagemDeErroDoObjeto(Component& objeto);

} // namespace kova::agenda
