// The check before dates are picked: their selection shows customer, animal and service.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

Integer frmFichaCompleta::ValidarCampos()
{
    Integer Ponto = 0;
    Integer resultado = 0;
    Trap(", frmFichaCompleta, ValidarCampos, Ponto: ", Ponto, [&] {
        // The unit goes back to "Semana(s)" without its click.
        const auto recusar = [&](const char* mensagem, Widget& campo) {
            ExibirInformacao(mensagem);
            campo.SetFocus();
            // The answer stands from here on, also where the unit cannot go back.
            resultado = 1;
            Estado.IgnorarEventoDeCampo = true;
            kvcmbReagendarPor.ListIndex(0);
        };

        // A customer of blanks alone passes: only this check does not trim.
        Ponto = 1;
        if (kvfCodigoDoCliente.Text().empty() && kvfNomeOuRazaoSocialDoCliente.Text().empty()
            && kvfApelidoOuNomeFantasiaDoCliente.Text().empty()) {
            optAgendarPorCliente.Value(true);
            return recusar("Informe um cliente.", kvfApelidoOuNomeFantasiaDoCliente);
        }
        Ponto = 2;
        if (Trim(kvcmbAnimal.Text()).empty())
            return recusar("Selecione um animal.", kvcmbAnimal);
        Ponto = 3;
        if (Trim(kvfNomeDoServico.Text()).empty() && Trim(kvfCodigoDoServico.Text()).empty())
            return recusar("Informe um serviço.", kvfNomeDoServico);
        Ponto = 4;
        if (Trim(kvcmbFuncionarios.Text()).empty())
            return recusar("Selecione um funcionário/colaborador.", kvcmbFuncionarios);
    });
    return resultado;
}

} // namespace kova::agenda
