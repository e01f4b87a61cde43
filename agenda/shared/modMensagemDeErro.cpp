#include "agenda/shared/modMensagemDeErro.hpp"

#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"

namespace kova::agenda {

void MensagemDeErro(Value Numero, Value Descricao, Value Local)
{
    // The error screen is created for this report alone.
    const ComponentRef objMensagem = CreateObject("KOVA_A_MsgErro.clsMensagem");
    // It shows the report until the user closes it.
    objMensagem->Call("Exibir",
                      {ByRef(Numero), ByRef(Descricao), ByRef(Local), ByRef(Principal.NomeDaAplicacao)});
    // The object is released at the end of this block.
}

void MensagemDeErroDoObjeto(Component& objeto)
{
    const Value numero = objeto.Get("NumeroDoErro");
    const Value descricao = objeto.Get("DescricaoDoErro");
    const Value local = objeto.Get("LocalDoErro");
    MensagemDeErro(numero, descricao, local);
}

} // namespace kova::agenda
