#pragma once

#include "agenda/contracts/platform.hpp"

namespace kova::agenda {

/// Message boxes of the forms, all titled NomeDaAplicacao. They return when the user has answered.
void ExibirInformacao(const Text& mensagem);
void ExibirCritica(const Text& mensagem);
/// True for Yes; No is the default button.
bool Perguntar(const Text& mensagem);

} // namespace kova::agenda
