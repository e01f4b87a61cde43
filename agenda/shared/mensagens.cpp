#include "agenda/shared/mensagens.hpp"

#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"

namespace kova::agenda {

namespace {

Reply Exibir(MessageKind tipo, const Text& mensagem)
{
    return ThePlatform().Toolkit().MessageBox(tipo, mensagem, Principal.NomeDaAplicacao);
}

} // namespace

void ExibirInformacao(const Text& mensagem) { Exibir(MessageKind::Information, mensagem); }

void ExibirCritica(const Text& mensagem) { Exibir(MessageKind::Critical, mensagem); }

bool Perguntar(const Text& mensagem) { return Exibir(MessageKind::Question, mensagem) == Reply::Yes; }

} // namespace kova::agenda
