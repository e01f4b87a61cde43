// The customer: four boxes search the same customer, each by a field of its own. Three behave alike; the
// address box differs in one line.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

constexpr const char* ClienteSemMarcas = "Cliente*";

} // namespace

std::array<KVFind*, 4> frmFichaCompleta::CaixasDoCliente()
{
    return {&kvfApelidoOuNomeFantasiaDoCliente, &kvfNomeOuRazaoSocialDoCliente, &kvfCodigoDoCliente,
            &kvfEnderecoDoCliente};
}

void frmFichaCompleta::kvfCodigoDoCliente_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfCodigoDoCliente_Click, Ponto: ", Ponto, [&] {
        if (CaixaDoCliente_Click(kvfCodigoDoCliente, Ponto))
            lblCliente.Caption(ClienteSemMarcas);
    });
}

void frmFichaCompleta::kvfApelidoOuNomeFantasiaDoCliente_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfApelidoOuNomeFantasiaDoCliente_Click, Ponto: ", Ponto, [&] {
        if (CaixaDoCliente_Click(kvfApelidoOuNomeFantasiaDoCliente, Ponto))
            lblCliente.Caption(ClienteSemMarcas);
    });
}

void frmFichaCompleta::kvfNomeOuRazaoSocialDoCliente_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfNomeOuRazaoSocialDoCliente_Click, Ponto: ", Ponto, [&] {
        if (CaixaDoCliente_Click(kvfNomeOuRazaoSocialDoCliente, Ponto))
            lblCliente.Caption(ClienteSemMarcas);
    });
}

void frmFichaCompleta::kvfEnderecoDoCliente_Click()
{
    Integer Ponto = 0;
    // The marks of the former customer stay: this box alone leaves them.
    Trap(", frmFichaCompleta, kvfEnderecoDoCliente_Click, Ponto: ", Ponto,
         [&] { CaixaDoCliente_Click(kvfEnderecoDoCliente, Ponto); });
}

bool frmFichaCompleta::CaixaDoCliente_Click(KVFind& origem, Integer& Ponto)
{
    Ponto = 1;
    switch (origem.Status()) {
    case find_status::Search: return PesquisarPelaCaixa(origem, Ponto);
    case find_status::Clear:
        Ponto = 6;
        EsvaziarOutrasCaixasDoCliente(origem);
        origem.SetFocus();
        return true;
    default: return false;
    }
}

bool frmFichaCompleta::PesquisarPelaCaixa(KVFind& origem, Integer& Ponto)
{
    if (PesquisaRecusadaPorTextoCurto(origem))
        return false;

    // Only the source holds a text from here on: that is what selects the search.
    Ponto = 2;
    for (KVFind* caixa : CaixasDoCliente())
        if (caixa != &origem)
            caixa->Text("");

    Ponto = 3;
    const bool escolhido = PesquisarCliente(
        Trim(kvfApelidoOuNomeFantasiaDoCliente.Text()), Trim(kvfNomeOuRazaoSocialDoCliente.Text()),
        Val(kvfCodigoDoCliente.Text()), Trim(kvfEnderecoDoCliente.Text()));
    if (!escolhido) {
        Ponto = 4;
        EsvaziarOutrasCaixasDoCliente(origem);
        origem.Enabled(true);
        origem.SetFocus();
        return true;
    }

    Ponto = 5;
    kvcmbAnimal.Enabled(true);
    kvcmbTiposDeServicos.Enabled(true);
    if (PreencherComboboxAnimal(Val(kvfCodigoDoCliente.Text())) != 0)
        return false;
    if (kvcmbAnimal.ListCount() == 1) {
        kvcmbAnimal.ListIndex(0);
        kvcmbTiposDeServicos.SetFocus();
    } else {
        kvcmbAnimal.SetFocus();
    }
    return false;
}

void frmFichaCompleta::EsvaziarOutrasCaixasDoCliente(const KVFind& origem)
{
    for (KVFind* caixa : CaixasDoCliente()) {
        if (caixa == &origem)
            continue;
        caixa->Status(find_status::Clear);
        caixa->Text("");
        caixa->Enabled(true);
    }
    LimparOutrosCamposDoFormularioRelacionadoAoCliente();
    LimparCamposDoAnimal();
}

void frmFichaCompleta::kvfCodigoDoCliente_KeyDown()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfCodigoDoCliente_KeyDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        CaixaDoCliente_KeyDown(kvfCodigoDoCliente);
    });
}

void frmFichaCompleta::kvfApelidoOuNomeFantasiaDoCliente_KeyDown()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfApelidoOuNomeFantasiaDoCliente_KeyDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        CaixaDoCliente_KeyDown(kvfApelidoOuNomeFantasiaDoCliente);
    });
}

void frmFichaCompleta::kvfNomeOuRazaoSocialDoCliente_KeyDown()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfNomeOuRazaoSocialDoCliente_KeyDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        CaixaDoCliente_KeyDown(kvfNomeOuRazaoSocialDoCliente);
    });
}

void frmFichaCompleta::kvfEnderecoDoCliente_KeyDown()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfEnderecoDoCliente_KeyDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        CaixaDoCliente_KeyDown(kvfEnderecoDoCliente);
    });
}

void frmFichaCompleta::CaixaDoCliente_KeyDown(const KVFind& origem)
{
    if (EventoIgnorado(Estado))
        return;
    for (KVFind* caixa : CaixasDoCliente())
        if (caixa != &origem)
            caixa->DisplayText("");
}

void frmFichaCompleta::LimparCamposDoCliente()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, LimparCamposDoCliente, Ponto: ", Ponto, [&] {
        Ponto = 1;
        for (KVFind* caixa : CaixasDoCliente())
            caixa->Status(find_status::Clear);
        for (KVFind* caixa : CaixasDoCliente())
            caixa->Text("");
        kvtxtTiposECanaisDeComunicacao.Text("");
    });
}

void frmFichaCompleta::LimparOutrosCamposDoFormularioRelacionadoAoCliente()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, LimparOutrosCamposDoFormularioRelacionadoAoCliente, Ponto: ", Ponto, [&] {
        Ponto = 1;
        kvtxtTiposECanaisDeComunicacao.Text("");
    });
}

} // namespace kova::agenda
