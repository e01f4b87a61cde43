#include "agenda/shared/wait_plate.hpp"

#include "agenda/shared/modArredondarCantosDoObjeto.hpp"
#include "agenda/shared/modFuncoes.hpp"
#include "agenda/shared/palette.hpp"

namespace kova::agenda {

std::vector<ControlDesign> DesenhoDaPlacaDeEspera()
{
    return {
        {.kind = WidgetKind::PictureBox,
         .name = "picMensagem",
         .width = 4200,
         .height = 900,
         .visible = false,
         .accessibleName = "Aguarde",
         .backColor = cores::AzulClaro},
        {.kind = WidgetKind::Label,
         .name = "lblMensagem",
         .container = "picMensagem",
         .left = 0,
         .top = 300,
         .width = 4200,
         .height = 300,
         .caption = "Aguarde, pesquisando...",
         .alignment = 2,
         .fontSize = 11,
         .fontBold = true,
         // The colour that refused fields give back to all labels.
         .foreColor = cores::Rotulo},
    };
}

void CentralizarPlacaDeEspera(Form& formulario, PictureBox& picMensagem)
{
    picMensagem.BringToFront();
    picMensagem.Top(formulario.ScaleHeight() / 2 - picMensagem.Height() / 2);
    picMensagem.Left(formulario.ScaleWidth() / 2 - picMensagem.Width() / 2);
}

void ExibirOcultarPlacaDeEspera(Form& formulario, PictureBox& picMensagem, bool Exibir)
{
    if (!formulario.Visible())
        return;
    if (Exibir) {
        formulario.Enabled(false);
        Long janela = picMensagem.Handle();
        std::uint8_t raio = 30;
        ArredondarCantosDoObjeto(janela, raio);
        CentralizarPlacaDeEspera(formulario, picMensagem);
        picMensagem.Visible(true);
        // The full second is deliberate: the user sees that something is being looked up.
        Pausar(1);
    } else {
        formulario.Enabled(true);
        picMensagem.Visible(false);
    }
}

} // namespace kova::agenda
