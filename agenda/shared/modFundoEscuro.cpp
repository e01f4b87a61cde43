#include "agenda/shared/modFundoEscuro.hpp"

#include "agenda/shared/module_platform.hpp"

namespace kova::agenda {

void AplicarFundoEscuro(Long Janela, Integer& Opcao)
{
    CreateObject("KOVA_A_EfeitosDeTela.clsFundoEscuro")->Call("Aplicar", {ByRef(Janela), ByRef(Opcao)});
}

void RemoverFundoEscuro(Long Janela)
{
    CreateObject("KOVA_A_EfeitosDeTela.clsFundoEscuro")->Call("Remover", {ByRef(Janela)});
}

} // namespace kova::agenda
