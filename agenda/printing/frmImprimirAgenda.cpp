#include "agenda/printing/frmImprimirAgenda.hpp"

#include "agenda/printing/frmImprimirAgenda_design.hpp"
#include "agenda/shared/border_shape.hpp"
#include "agenda/shared/modFundoEscuro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

#include <exception>

namespace kova::agenda {

std::shared_ptr<frmImprimirAgenda> frmImprimirAgenda::Criar()
{
    std::shared_ptr<frmImprimirAgenda> formulario(new frmImprimirAgenda);
    formulario->Formulario->Owner(formulario);
    return formulario;
}

frmImprimirAgenda::frmImprimirAgenda()
    : Formulario(ThePlatform().Toolkit().CreateForm(DesenhoDefrmImprimirAgenda()))
{
    Formulario->OnLoad([this] { Form_Load(); });
    Formulario->OnUnload([this](bool&) { AoDescarregar(); });
    kvcmdVisualizarImpressao.OnClick([this] { kvcmdVisualizarImpressao_Click(); });
    kvcmdCancelar.OnClick([this] { kvcmdCancelar_Click(); });
}

frmImprimirAgenda::~frmImprimirAgenda()
{
    // Its buttons unload it; this is for an opener that failed before.
    if (!Formulario->IsLoaded())
        return;
    try {
        Formulario->Unload();
    } catch (const std::exception&) {
        // The opener has reported its own failure, and the form goes with its last reference.
    }
}

// The next opening gets a new dialog with empty combos.
void frmImprimirAgenda::AoDescarregar()
{
    auto& instancia = Principal.ImprimirAgendaImplicita;
    if (instancia.get() == this)
        instancia.reset();
}

Integer frmImprimirAgenda::MontarExibirFormulario()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose.
    Trap(", frmFicha, MontarExibirFormulario, Ponto: ", Ponto, [&] {
        const bool escurecer = !Principal.SemFundoEscuroNaImpressao;
        Ponto = 1;
        Integer opcao = 0;
        if (escurecer)
            AplicarFundoEscuro(Principal.HandleDaJanelaPrincipal, opcao);

        Ponto = 2;
        PreencherComboBoxDeTransporte();

        Ponto = 3;
        kvcmbTransporte.ListIndex(0);

        Ponto = 4;
        Formulario->Show(ShowMode::Modal);

        Ponto = 5;
        if (escurecer)
            RemoverFundoEscuro(Principal.HandleDaJanelaPrincipal);
    });
    return 0;
}

void frmImprimirAgenda::PreencherComboBoxDeTransporte()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose.
    Trap(", frmLista, PreencherComboBoxDeTransporte, Ponto: ", Ponto, [&] {
        Ponto = 1;
        kvcmbTransporte.Clear();
        for (const char* texto : {"Todas as situações", "Buscar e Levar", "Buscar", "Levar"}) {
            kvcmbTransporte.AddItem(texto);
            kvcmbTransporte.ItemData(kvcmbTransporte.NewIndex(), kvcmbTransporte.NewIndex());
        }
    });
}

void frmImprimirAgenda::Form_Load()
{
    Integer Ponto = 0;
    Trap(", frmImprimirAgenda, Form_Load, Ponto: ", Ponto, [&] {
        Ponto = 1;
        AplicarBordaDoFormulario(*Formulario);
    });
}

void frmImprimirAgenda::kvcmdVisualizarImpressao_Click()
{
    Integer Ponto = 0;
    Trap(", frmImprimirAgenda, kvcmdVisualizarImpressao_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (ValidarCampos() == 1)
            return;
        Ponto = 2;
        ImprimirLista();
        // Also where nothing was printed.
        Ponto = 3;
        Formulario->Unload();
    });
}

void frmImprimirAgenda::kvcmdCancelar_Click()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose.
    Trap(", frmFicha, kvcmdCancelar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        Formulario->Unload();
    });
}

Integer frmImprimirAgenda::ValidarCampos()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose.
    Trap(", frmFicha, ValidarCampos, Ponto: ", Ponto, [&] { Ponto = 1; });
    return 0;
}

} // namespace kova::agenda
