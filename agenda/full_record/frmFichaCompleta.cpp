#include "agenda/full_record/frmFichaCompleta.hpp"

#include "agenda/full_record/frmFichaCompleta_design.hpp"
#include "agenda/shared/border_shape.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"
#include "agenda/shared/wait_plate.hpp"

namespace kova::agenda {

std::shared_ptr<frmFichaCompleta> frmFichaCompleta::Criar()
{
    std::shared_ptr<frmFichaCompleta> ficha(new frmFichaCompleta);
    ficha->Formulario->Owner(ficha);
    return ficha;
}

frmFichaCompleta::frmFichaCompleta()
    : Formulario(ThePlatform().Toolkit().CreateForm(DesenhoDefrmFichaCompleta()))
{
    LigarEventos();
}

void frmFichaCompleta::LigarEventos()
{
    Formulario->OnLoad([this] { Form_Load(); });

    optAgendarPorCliente.OnClick([this](Integer Index) { optAgendarPor_Click(Index); });
    optAgendarPorAnimal.OnClick([this](Integer Index) { optAgendarPor_Click(Index); });

    kvfCodigoDoCliente.OnClick([this] { kvfCodigoDoCliente_Click(); });
    kvfApelidoOuNomeFantasiaDoCliente.OnClick([this] { kvfApelidoOuNomeFantasiaDoCliente_Click(); });
    kvfNomeOuRazaoSocialDoCliente.OnClick([this] { kvfNomeOuRazaoSocialDoCliente_Click(); });
    kvfEnderecoDoCliente.OnClick([this] { kvfEnderecoDoCliente_Click(); });
    // No handler looks at the key: that the user types in the box is what counts.
    kvfCodigoDoCliente.OnKeyDown([this](Integer, Integer) { kvfCodigoDoCliente_KeyDown(); });
    kvfApelidoOuNomeFantasiaDoCliente.OnKeyDown(
        [this](Integer, Integer) { kvfApelidoOuNomeFantasiaDoCliente_KeyDown(); });
    kvfNomeOuRazaoSocialDoCliente.OnKeyDown(
        [this](Integer, Integer) { kvfNomeOuRazaoSocialDoCliente_KeyDown(); });
    kvfEnderecoDoCliente.OnKeyDown([this](Integer, Integer) { kvfEnderecoDoCliente_KeyDown(); });

    kvcmbAnimal.OnClick([this] { kvcmbAnimal_Click(); });
    kvfNomeDoAnimal.OnClick([this] { kvfNomeDoAnimal_Click(); });
    kvfNomeDoAnimal.OnKeyDown([this](Integer, Integer) { kvfNomeDoAnimal_KeyDown(); });

    kvcmbTiposDeServicos.OnClick([this] { kvcmbTiposDeServicos_Click(); });
    kvfCodigoDoServico.OnClick([this] { kvfCodigoDoServico_Click(); });
    kvfNomeDoServico.OnClick([this] { kvfNomeDoServico_Click(); });
    kvfCodigoDoServico.OnKeyDown([this](Integer, Integer) { kvfCodigoDoServico_KeyDown(); });
    kvfNomeDoServico.OnKeyDown([this](Integer, Integer) { kvfNomeDoServico_KeyDown(); });
    kvtimHoraInicial.OnLostFocus([this] { kvtimHoraInicial_LostFocus(); });

    kvcmbReagendar.OnClick([this] { kvcmbReagendar_Click(); });
    kvcmbReagendarPor.OnClick([this] { kvcmbReagendarPor_Click(); });
    kvnumNumeroDeSemanas.OnKeyPress([this](Integer& KeyAscii) { kvnumNumeroDeSemanas_KeyPress(KeyAscii); });

    kvcmdSalvarFecharConfirmar.OnClick([this] { kvcmdSalvarFecharConfirmar_Click(); });
    kvcmdCancelarAlterar.OnClick([this] { kvcmdCancelarAlterar_Click(); });
}

void frmFichaCompleta::Form_Load()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, Form_Load, Ponto: ", Ponto, [&] {
        Ponto = 1;
        AplicarBordaDoFormulario(*Formulario);
    });
}

void frmFichaCompleta::ExibirOcultarpicMensagem(bool Exibir)
{
    ExibirOcultarPlacaDeEspera(*Formulario, picMensagem, Exibir);
}

void frmFichaCompleta::CentralizarpicMensagem() { CentralizarPlacaDeEspera(*Formulario, picMensagem); }

} // namespace kova::agenda
