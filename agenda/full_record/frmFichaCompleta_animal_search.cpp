// The search by animal: it finds the owner. And the choice at the top of the form between the two searches.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

/// Index of the option that searches the customer by its own fields.
constexpr Integer PorDadosDoCliente = 1;

} // namespace

void frmFichaCompleta::optAgendarPor_Click(Integer Index)
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, optAgendarPor_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        LimparCamposDoCliente();
        LimparCamposDoAnimal();

        Ponto = 2;
        const bool porCliente = Index == PorDadosDoCliente;
        PararComTab(porCliente);
        for (KVFind* caixa : CaixasDoCliente())
            caixa->Enabled(porCliente);

        // Either way the combo stays shut until a customer is found.
        Ponto = 3;
        kvcmbAnimal.Visible(porCliente);
        kvcmbAnimal.Enabled(false);
        kvfNomeDoAnimal.Visible(!porCliente);
        kvfNomeDoAnimal.Enabled(!porCliente);
        if (!porCliente) {
            kvfNomeDoAnimal.Status(find_status::Clear);
            kvfNomeDoAnimal.Text("");
        }
    });
}

// The animal's search passes through a stop on the way back, and the animals' combo does not get its own
// again.
void frmFichaCompleta::PararComTab(bool porCliente)
{
    for (KVFind* caixa : CaixasDoCliente())
        caixa->TabStop(porCliente);
    if (!porCliente)
        kvcmbAnimal.TabStop(false);
    kvfNomeDoAnimal.TabStop(true);
    if (porCliente)
        kvfNomeDoAnimal.TabStop(false);
}

void frmFichaCompleta::kvfNomeDoAnimal_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvfNomeDoAnimal_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        switch (kvfNomeDoAnimal.Status()) {
        case find_status::Search: return PesquisarPeloAnimal(Ponto);
        case find_status::Clear:
            Ponto = 6;
            EsvaziarClienteDoAnimal();
            kvfNomeDoAnimal.SetFocus();
            return;
        default: return;
        }
    });
}

void frmFichaCompleta::PesquisarPeloAnimal(Integer& Ponto)
{
    // A short number may be a code.
    const Text texto = kvfNomeDoAnimal.Text();
    if (Length(texto) < 3 && !IsNumeric(texto))
        return PedirTresCaracteres(kvfNomeDoAnimal);

    Ponto = 2;
    if (!PesquisarAnimal(Trim(texto))) {
        Ponto = 3;
        EsvaziarClienteDoAnimal();
        kvfNomeDoAnimal.Enabled(true);
        kvfNomeDoAnimal.SetFocus();
        return;
    }

    Ponto = 4;
    kvcmbAnimal.Enabled(true);
    kvcmbTiposDeServicos.Enabled(true);
    if (PreencherComboboxAnimal(Val(kvfCodigoDoCliente.Text())) != 0)
        return;
    Ponto = 5;
    ExibirAnimaisDoDono();
}

void frmFichaCompleta::ExibirAnimaisDoDono()
{
    if (kvcmbAnimal.ListCount() == 1) {
        kvcmbAnimal.ListIndex(0);
        kvfNomeDoAnimal.Text(kvcmbAnimal.Text());
        kvcmbTiposDeServicos.SetFocus();
        return;
    }
    // The owner has several: the combo takes the place of the search.
    if (optAgendarPorAnimal.Value()) {
        kvfNomeDoAnimal.Visible(false);
        kvcmbAnimal.Visible(true);
    }
    if (kvcmbAnimal.Visible())
        kvcmbAnimal.SetFocus();
    else
        kvcmbTiposDeServicos.SetFocus();
}

void frmFichaCompleta::EsvaziarClienteDoAnimal()
{
    // The box of the nickname is not among them.
    KVFind* const caixas[] = {&kvfNomeOuRazaoSocialDoCliente, &kvfCodigoDoCliente, &kvfEnderecoDoCliente};
    for (KVFind* caixa : caixas)
        caixa->Status(find_status::Clear);
    for (KVFind* caixa : caixas)
        caixa->Text("");
    for (KVFind* caixa : caixas)
        caixa->Enabled(true);
    LimparOutrosCamposDoFormularioRelacionadoAoCliente();
}

void frmFichaCompleta::kvfNomeDoAnimal_KeyDown()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose: that of the nickname's box.
    Trap(", frmFichaCompleta, kvfApelidoOuNomeFantasiaDoCliente_KeyDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (EventoIgnorado(Estado))
            return;
        LimparCamposDoCliente();
        LimparCamposDoAnimal();
    });
}

bool frmFichaCompleta::PesquisarAnimal(const Text& Nome)
{
    Integer Ponto = 0;
    return Trap(", frmFichaCompleta, PesquisarAnimal, Ponto: ", Ponto, [&] {
        Ponto = 1;
        ExibirOcultarpicMensagem(true);
        ComponentRef objAnimais = CreateObject("KOVA_N_ClientAnim.clsAnimais");

        Ponto = 2;
        Text nome = Nome;
        if (objAnimais->Call("Selecionar", {Long{2}, Integer{0}, Long{1}, ByRef(nome), Integer{1}, Double{0}})
                .ToInteger()
            != 0) {
            Ponto = 3;
            ExibirOcultarpicMensagem(false);
            MensagemDeErroDoObjeto(*objAnimais);
            return false;
        }

        Ponto = 4;
        ExibirOcultarpicMensagem(false);
        const auto registros = objAnimais->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objAnimais.reset();

        Ponto = 5;
        const Long encontrados = registros->RecordCount();
        if (encontrados == 0) {
            ExibirInformacao("Nenhum cliente encontrado com o nome do animal '" + Nome + "'.");
            ThePlatform().Toolkit().SendKeys("+({HOME})");
            return false;
        }

        Ponto = 6;
        return encontrados == 1 ? AceitarDonoEncontrado(*registros) : EscolherDono(*registros);
    });
}

bool frmFichaCompleta::AceitarDonoEncontrado(const RecordSet& registros)
{
    if (RecusarClientePelaSituacao(registros.Field("SituacaoDoCliente").ToInteger()))
        return false;
    // The section's head is not touched: this search knows no marks.
    ExibirClienteDoRegistro(registros);
    return true;
}

bool frmFichaCompleta::EscolherDono(RecordSet& registros)
{
    const auto pesquisa = AbrirPesquisaDeClientes(registros);
    const bool escolhido = pesquisa->RegistroSelecionado;
    if (escolhido)
        ExibirClienteEscolhido(*pesquisa);
    pesquisa->Formulario->Unload();
    return escolhido;
}

} // namespace kova::agenda
