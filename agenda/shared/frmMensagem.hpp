#pragma once

#include "agenda/contracts/widgets.hpp"

#include <cstdint>
#include <memory>

namespace kova::agenda {

/// The wait window: one line of text on a plate of its own. Whoever makes it sets lblMensagem.Caption, calls
/// MontarExibirFormulario and unloads it; it closes at the latest when its object goes.
class frmMensagem {
public:
    /// A new wait window, hidden.
    static std::shared_ptr<frmMensagem> Criar();
    ~frmMensagem();
    frmMensagem(const frmMensagem&) = delete;
    frmMensagem& operator=(const frmMensagem&) = delete;

    /// Fits the window to its text, shows it without blocking and waits one second. Answers 0, also after a
    /// reported failure.
    Integer MontarExibirFormulario();
    /// Waits that many seconds with the screen alive.
    void Pausar(Double Segundos);

    FormRef Formulario;
    Label& lblMensagem = Bind<Label>(Formulario, "lblMensagem");

private:
    frmMensagem();

    void Form_Load();
    void Form_Resize();
    void Form_Unload();
    void ArredondarCantosDoObjeto(Long& Janela, std::uint8_t& Raio);

    /// The label is fitted at every other resize.
    bool RotuloAjustado = false;
};

} // namespace kova::agenda
