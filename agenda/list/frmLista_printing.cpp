// Printing the list: its menu, and the dialog that gets the list's filters.

#include "agenda/contracts/text.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/printing/frmImprimirAgenda.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/trap.hpp"

#include <exception>
#include <memory>
#include <utility>

namespace kova::agenda {

namespace {

/// Unloads the dialog at its end where a failure has kept it from showing: it would pass its title and its
/// filters on to the next one.
class DialogoPassageiro {
public:
    explicit DialogoPassageiro(std::shared_ptr<frmImprimirAgenda> dialogo) : dialogo_(std::move(dialogo)) { }
    ~DialogoPassageiro()
    {
        try {
            if (dialogo_->Formulario->IsLoaded())
                dialogo_->Formulario->Unload();
        } catch (const std::exception&) {
            // What kept it from showing has been reported, or is on its way.
        }
    }
    DialogoPassageiro(const DialogoPassageiro&) = delete;
    DialogoPassageiro& operator=(const DialogoPassageiro&) = delete;

    frmImprimirAgenda* operator->() const { return dialogo_.get(); }

private:
    std::shared_ptr<frmImprimirAgenda> dialogo_;
};

} // namespace

void frmLista::kvcmdImprimirLista_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdImprimirLista_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        mnuImprimirListaDeAgendamentos.Caption("Lista dos agendamentos");
        mnuImprimirListaDeAgendamentosParaTransporte.Caption("Lista dos agendamentos para transporte");
        Ponto = 2;
        Formulario->PopupMenu(mnuImprimirLista, kvcmdImprimirLista.Left(),
                              kvcmdImprimirLista.Top() + kvcmdImprimirLista.Height());
    });
}

void frmLista::mnuImprimirListaDeAgendamentos_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, mnuImprimirListaDeAgendamentos_Click, Ponto: ", Ponto,
         [&] { AbrirImpressaoDaLista(tipo_da_lista::Agendamentos, Ponto); });
}

void frmLista::mnuImprimirListaDeAgendamentosParaTransporte_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, mnuImprimirListaDeAgendamentosParaTransporte_Click, Ponto: ", Ponto,
         [&] { AbrirImpressaoDaLista(tipo_da_lista::Transporte, Ponto); });
}

void frmLista::AbrirImpressaoDaLista(Integer Tipo, Integer& Ponto)
{
    // What is on the screen decides, whatever other filters would find.
    Ponto = 1;
    if (ResultadoDaSelecao()->RecordCount() == 0) {
        ExibirInformacao("Nenhum agendamento encontrado para impressão.");
        return;
    }

    // Also under a filter: this becomes the page to come back to.
    Ponto = 2;
    PaginaSalva = Checked(ResultadoDaSelecao()->AbsolutePage());
    AbrirDialogoDeImpressao(Tipo, Ponto);

    // The list is fresh on the same page, also where nothing was printed.
    Ponto = 9;
    if (GerarLista() == 0) {
        Ponto = 10;
        PaginaAtual = PaginaSalva;
        AtualizarObjetos(0);
    }
}

void frmLista::AbrirDialogoDeImpressao(Integer Tipo, Integer& Ponto)
{
    // The dialog's one instance is made at its first use and goes when it is closed.
    Ponto = 3;
    auto& instancia = Principal.ImprimirAgendaImplicita;
    if (!instancia)
        instancia = frmImprimirAgenda::Criar();
    const DialogoPassageiro dialogo(instancia);
    dialogo->TipoDaListaASerImpressa(Tipo);
    dialogo->Formulario->Load();

    // The filters' rows go over, with what is chosen in them.
    Ponto = 4;
    CopiarFiltro(kvcmbSituacao, dialogo->kvcmbSituacao);
    Ponto = 5;
    CopiarFiltro(kvcmbTiposDeServicos, dialogo->kvcmbTiposDeServicos);
    Ponto = 6;
    CopiarFiltro(kvcmbFuncionarios, dialogo->kvcmbFuncionarios);

    Ponto = 7;
    Formulario->Refresh();
    if (Tipo == tipo_da_lista::Transporte)
        dialogo->kvTheme.Caption("Imprimir lista para transporte");

    Ponto = 8;
    dialogo->MontarExibirFormulario();
}

void frmLista::CopiarFiltro(KVComboBox& fonte, KVComboBox& destino)
{
    destino.Clear();
    const Integer escolhida = fonte.ListIndex();
    CopiarLinhas(fonte, destino, 0, Checked(fonte.ListCount() - 1));
    Escolher(destino, escolhida);
    Escolher(fonte, escolhida);
}

} // namespace kova::agenda
