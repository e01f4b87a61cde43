#include "agenda/records/record_result.hpp"

#include "agenda/records/record_form.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"

#include <algorithm>

namespace kova::agenda {

Value Gravar(Component& agenda, Integer tipoDeOperacao)
{
    switch (tipoDeOperacao) {
    case operacao::Adicionar: return agenda.Call("Adicionar");
    case operacao::Alterar: return agenda.Call("Alterar");
    case operacao::Excluir: return agenda.Call("Excluir");
    default: return resultado_da_gravacao::Concluida;
    }
}

void InformarFalhaOuRecusa(Component& agenda, Integer resultado)
{
    if (resultado == resultado_da_gravacao::FalhaTecnica)
        MensagemDeErroDoObjeto(agenda);
    else if (resultado == resultado_da_gravacao::Recusada)
        ExibirCritica(agenda.Get("DescricaoDaFalha").ToText());
}

Text MarcarCampoRecusado(Component& agenda, Form& formulario, std::initializer_list<CampoRecusavel> campos)
{
    RestaurarCorDosRotulos(formulario);
    const Text nome = agenda.Get("NomeDoCampoValidado").ToText();
    const auto* recusado = std::ranges::find(campos, nome, &CampoRecusavel::nome);
    if (recusado != campos.end())
        MarcarCampoRecusado(recusado->rotulo, recusado->campo);
    return nome;
}

} // namespace kova::agenda
