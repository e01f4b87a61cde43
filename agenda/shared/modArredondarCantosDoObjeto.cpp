#include "agenda/shared/modArredondarCantosDoObjeto.hpp"

#include "agenda/contracts/text.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

void ArredondarCantosDoObjeto(Long& Janela, std::uint8_t& Raio)
{
    Integer Ponto = 0;
    Trap(", modArredondarCantosDoObjeto, ArredondarCantosDoObjeto, Ponto: ", Ponto, [&] {
        Ponto = 1;
        const ComponentRef objVersao = CreateObject("KOVA_N_SO.clsObterVersaoDoSO");

        Ponto = 2;
        const Text sistema = objVersao->Call("ObterversaoDoSO").ToText();
        if (UpperCase(sistema) != UpperCase(SistemaDeCantosRetos))
            ThePlatform().Toolkit().SetRoundRectRegion(Janela, Raio, Raio);
    });
}

} // namespace kova::agenda
