// The wait plate over the grid.

#include "agenda/list/frmLista.hpp"
#include "agenda/shared/modArredondarCantosDoObjeto.hpp"
#include "agenda/shared/modFuncoes.hpp"

namespace kova::agenda {

void frmLista::ExibirOcultarpicMensagem(bool Exibir)
{
    if (Exibir) {
        Formulario->Enabled(false);
        msfgGrade.Visible(false);
        Long janela = picMensagem.Handle();
        std::uint8_t raio = 30;
        ArredondarCantosDoObjeto(janela, raio);
        PosicionarpicMensagem();
        picMensagem.Visible(true);
        // The full second is deliberate: the user sees that the list is about to change.
        Pausar(1);
    } else {
        Formulario->Enabled(true);
        picMensagem.Visible(false);
        msfgGrade.Visible(true);
    }
}

void frmLista::PosicionarpicMensagem()
{
    picMensagem.BringToFront();
    picMensagem.Top(msfgGrade.Top() + static_cast<Twips>(msfgGrade.RowHeight(0)));
}

} // namespace kova::agenda
