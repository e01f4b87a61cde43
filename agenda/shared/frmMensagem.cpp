#include "agenda/shared/frmMensagem.hpp"

#include "agenda/contracts/text.hpp"
#include "agenda/shared/border_shape.hpp"
#include "agenda/shared/frmMensagem_design.hpp"
#include "agenda/shared/modArredondarCantosDoObjeto.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modFuncoes.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

#include <exception>

namespace kova::agenda {

namespace {

/// What the window is wider than its text.
constexpr Twips Folga = 780;

} // namespace

std::shared_ptr<frmMensagem> frmMensagem::Criar()
{
    std::shared_ptr<frmMensagem> mensagem(new frmMensagem);
    mensagem->Formulario->Owner(mensagem);
    return mensagem;
}

frmMensagem::frmMensagem() : Formulario(ThePlatform().Toolkit().CreateForm(DesenhoDefrmMensagem()))
{
    Formulario->OnLoad([this] { Form_Load(); });
    Formulario->OnResize([this] { Form_Resize(); });
    Formulario->OnUnload([this](bool&) { Form_Unload(); });
}

frmMensagem::~frmMensagem()
{
    // Its maker unloads it; this is for a maker that failed before.
    if (!Formulario->IsLoaded())
        return;
    try {
        Formulario->Unload();
    } catch (const std::exception&) {
        // The maker has reported its own failure, and the window goes with its last reference.
    }
}

Integer frmMensagem::MontarExibirFormulario()
{
    Integer Ponto = 0;
    Trap(", frmMensagem, MontarExibirFormulario, Ponto: ", Ponto, [&] {
        Ponto = 1;
        Formulario->Width(lblMensagem.Width() + Folga);

        // Showing and waiting share a checkpoint.
        Ponto = 2;
        Formulario->Show(ShowMode::Modeless);
        Pausar(1);
    });
    return 0;
}

void frmMensagem::Pausar(Double Segundos) { agenda::Pausar(Segundos); }

void frmMensagem::Form_Load()
{
    Integer Ponto = 0;
    Trap(", frmMensagem, Form_Load, Ponto: ", Ponto, [&] {
        Ponto = 1;
        const ComponentRef objVersao = CreateObject("KOVA_N_SO.clsObterVersaoDoSO");

        Ponto = 2;
        const Text sistema = objVersao->Call("ObterversaoDoSO").ToText();
        if (UpperCase(sistema) != UpperCase(SistemaDeCantosRetos)) {
            Long janela = Formulario->Handle();
            std::uint8_t raio = 5;
            ArredondarCantosDoObjeto(janela, raio);
        } else {
            // A frame in place of the round corners.
            AdicionarMoldura(*Formulario);
        }
        Ponto = 3;
    });
}

void frmMensagem::ArredondarCantosDoObjeto(Long& Janela, std::uint8_t& Raio)
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose: that of the one that shows the window.
    Trap(", frmMensagem, MontarExibirFormulario, Ponto: ", Ponto, [&] {
        Ponto = 1;
        ThePlatform().Toolkit().SetRoundRectRegion(Janela, Raio, Raio);
    });
}

void frmMensagem::Form_Resize()
{
    if (!RotuloAjustado) {
        lblMensagem.Width(Formulario->Width());
        lblMensagem.Left(0);
    }
    RotuloAjustado = !RotuloAjustado;
}

void frmMensagem::Form_Unload()
{
    // Unloading goes on whatever the owner did; the form that is going already does nothing more.
    Formulario->Unload();
}

} // namespace kova::agenda
