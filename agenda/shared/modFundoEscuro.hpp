#pragma once

#include "agenda/contracts/value.hpp"

namespace kova::agenda {

/// Dims a window behind a dialog. Each call makes a component of its own, so the dimming is known by
/// the window alone. Failures go up to the caller.
void AplicarFundoEscuro(Long Janela, Integer& Opcao);

/// Takes the dimming away; harmless on a window that is not dimmed. Failures go up to the caller.
void RemoverFundoEscuro(Long Janela);

} // namespace kova::agenda
