// The commands that open a record form: add, detail, alter, delete.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/records/record_form.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/trap.hpp"
#include "agenda/simplified_record/frmFichaSimplificada.hpp"

#include <utility>

namespace kova::agenda {

namespace {

constexpr const char* TodosOsTipos = "(Todos)";

FichaDaLista FichaDe(const std::shared_ptr<frmFichaCompleta>& ficha)
{
    return {ficha,
            ficha->Formulario,
            ficha->kvcmbTiposDeServicos,
            ficha->kvcmbFuncionarios,
            ficha->kvcmbSituacao,
            ficha->Estado,
            [ficha](Integer Operacao) { ficha->MontarExibirFormulario(Operacao); }};
}

FichaDaLista FichaDe(const std::shared_ptr<frmFichaSimplificada>& ficha)
{
    return {ficha,
            ficha->Formulario,
            ficha->kvcmbTiposDeServicos,
            ficha->kvcmbFuncionarios,
            ficha->kvcmbSituacao,
            ficha->Estado,
            [ficha](Integer Operacao) { ficha->MontarExibirFormulario(Operacao); }};
}

/// A record form of its own for one row, not yet loaded.
FichaDaLista CriarFicha(bool simplificado)
{
    return simplificado ? FichaDe(frmFichaSimplificada::Criar()) : FichaDe(frmFichaCompleta::Criar());
}

// The shared instances: made and loaded at their first use, gone when they have been unloaded.

FichaDaLista FichaCompletaImplicita()
{
    if (!Principal.FichaCompletaImplicita)
        Principal.FichaCompletaImplicita = frmFichaCompleta::Criar();
    Principal.FichaCompletaImplicita->Formulario->Load();
    return FichaDe(Principal.FichaCompletaImplicita);
}

FichaDaLista FichaSimplificadaImplicita()
{
    if (!Principal.FichaSimplificadaImplicita)
        Principal.FichaSimplificadaImplicita = frmFichaSimplificada::Criar();
    Principal.FichaSimplificadaImplicita->Formulario->Load();
    return FichaDe(Principal.FichaSimplificadaImplicita);
}

void DescarregarFichaCompletaImplicita()
{
    if (const auto ficha = std::exchange(Principal.FichaCompletaImplicita, nullptr))
        ficha->Formulario->Unload();
}

void DescarregarFichaSimplificadaImplicita()
{
    if (const auto ficha = std::exchange(Principal.FichaSimplificadaImplicita, nullptr))
        ficha->Formulario->Unload();
}

} // namespace

// The menu of the two kinds of appointment opens below the button.
void frmLista::kvcmdAdicionar_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdAdicionar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        // Both captions go to the parent, which is never on show; the entries keep those of their design.
        mnuAdicionarAgendamento.Caption("Agendamento completo");
        mnuAdicionarAgendamento.Caption("Agendamento simplificado");
        Formulario->PopupMenu(mnuAdicionarAgendamento, kvcmdAdicionar.Left(),
                              kvcmdAdicionar.Top() + kvcmdAdicionar.Height());
    });
}

void frmLista::mnuAdicionarAgendamentoCompleto_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, mnuAdicionarAgendamentoCompleto_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        const FichaDaLista ficha = FichaCompletaImplicita();
        CopiarSituacoes(ficha.kvcmbSituacao, UltimaSituacao());

        Ponto = 3;
        CopiarTiposDeServicos(ficha.kvcmbTiposDeServicos, ficha.kvcmbTiposDeServicos, Ponto);

        Ponto = 6;
        CopiarFuncionarios(ficha.kvcmbFuncionarios, Ponto);

        Ponto = 8;
        ficha.MontarExibirFormulario(operacao::Adicionar);

        Ponto = 9;
        if (ficha.Estado.OperacaoConcluida) {
            Ponto = 10;
            GerarLista();
            Ponto = 11;
            AtualizarObjetos(5);
        }

        Ponto = 5;
        DescarregarFichaCompletaImplicita();
    });
}

void frmLista::mnuAdicionarAgendamentoSimplificado_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, mnuAdicionarAgendamentoSimplificado_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        const FichaDaLista ficha = FichaSimplificadaImplicita();
        CopiarSituacoes(ficha.kvcmbSituacao, UltimaSituacaoSemPreVenda());

        Ponto = 6;
        CopiarTiposDeServicos(ficha.kvcmbTiposDeServicos, ficha.kvcmbTiposDeServicos, Ponto);

        Ponto = 9;
        CopiarFuncionarios(ficha.kvcmbFuncionarios, Ponto);

        Ponto = 11;
        ficha.MontarExibirFormulario(operacao::Adicionar);

        Ponto = 12;
        if (ficha.Estado.OperacaoConcluida) {
            Ponto = 13;
            GerarLista();
            Ponto = 14;
            AtualizarObjetos(5);
        }

        Ponto = 5;
        DescarregarFichaSimplificadaImplicita();
    });
}

void frmLista::kvcmdDetalhar_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdDetalhar_Click, Ponto: ", Ponto,
         [&] { AbrirFichaDaLinha(operacao::Detalhar, 5, Ponto); });
}

void frmLista::kvcmdAlterar_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdAlterar_Click, Ponto: ", Ponto,
         [&] { AbrirFichaDaLinha(operacao::Alterar, 5, Ponto); });
}

// The page stays as it was: a deleted last row of the last page leaves it past the end.
void frmLista::kvcmdExcluir_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdExcluir_Click, Ponto: ", Ponto,
         [&] { AbrirFichaDaLinha(operacao::Excluir, 6, Ponto); });
}

void frmLista::AbrirFichaDaLinha(Integer Operacao, Integer ModoDaRecarga, Integer& Ponto)
{
    // No hover moves the row while the command runs. A row without a registered customer is a
    // simplified appointment.
    Ponto = 1;
    msfgGrade.Enabled(false);
    const bool simplificado = NumeroDaCelula(colunas::CodigoDoCliente) == 0;
    const FichaDaLista ficha = CriarFicha(simplificado);
    ficha.Formulario->Load();

    // The filters' rows go over to the form.
    Ponto = 2;
    CopiarSituacoes(ficha.kvcmbSituacao, simplificado ? UltimaSituacaoSemPreVenda() : UltimaSituacao());

    Ponto = 4;
    // A detail of a registered row empties the combo of the shared full record in place of its own, which
    // is empty anyway, and so brings that one into being.
    const bool limpaAOutra = Operacao == operacao::Detalhar && !simplificado;
    CopiarTiposDeServicos(
        ficha.kvcmbTiposDeServicos,
        limpaAOutra ? FichaCompletaImplicita().kvcmbTiposDeServicos : ficha.kvcmbTiposDeServicos, Ponto);

    Ponto = 7;
    CopiarFuncionarios(ficha.kvcmbFuncionarios, Ponto);

    // The form reads the row itself and runs until it is closed.
    Ponto = 9;
    ficha.MontarExibirFormulario(Operacao);

    msfgGrade.Enabled(true);

    // The list is fresh where something was written.
    Ponto = 10;
    if (ficha.Estado.OperacaoConcluida) {
        Ponto = 11;
        GerarLista();
        Ponto = 12;
        AtualizarObjetos(ModoDaRecarga);
    }

    Ponto = 13;
    ficha.Formulario->Unload();
}

Integer frmLista::UltimaSituacao() const { return Checked(kvcmbSituacao.ListCount() - 1); }

Integer frmLista::UltimaSituacaoSemPreVenda() const { return Checked(kvcmbSituacao.ListCount() - 2); }

void frmLista::CopiarSituacoes(KVComboBox& destino, Integer ultima)
{
    destino.Clear();
    const Integer escolhida = kvcmbSituacao.ListIndex();
    CopiarLinhas(kvcmbSituacao, destino, 1, ultima);
    Escolher(kvcmbSituacao, escolhida);
}

void frmLista::CopiarTiposDeServicos(KVComboBox& destino, KVComboBox& comboALimpar, Integer& Ponto)
{
    comboALimpar.Clear();
    const Integer escolhido = kvcmbTiposDeServicos.ListIndex();
    destino.AddItem(TodosOsTipos);
    destino.ItemData(destino.NewIndex(), 0);
    ++Ponto;
    CopiarLinhas(kvcmbTiposDeServicos, destino, 1, Checked(kvcmbTiposDeServicos.ListCount() - 1));
    // The filter chosen on the list is what the record starts with.
    ++Ponto;
    Escolher(destino, escolhido);
    Escolher(kvcmbTiposDeServicos, escolhido);
}

void frmLista::CopiarFuncionarios(KVComboBox& destino, Integer& Ponto)
{
    destino.Clear();
    const Integer escolhido = kvcmbFuncionarios.ListIndex();
    CopiarLinhas(kvcmbFuncionarios, destino, 1, Checked(kvcmbFuncionarios.ListCount() - 1));
    ++Ponto;
    IgnorarClick = true;
    // One less, as "(Funcionários)" stays behind.
    if (escolhido != 0)
        destino.ListIndex(Checked(escolhido - 1));
    Escolher(kvcmbFuncionarios, escolhido);
}

// The filter really moves while it is copied. A record form leaves row 0 behind, the one that filters
// nothing.
void frmLista::CopiarLinhas(KVComboBox& fonte, KVComboBox& destino, Integer primeira, Integer ultima)
{
    for (Integer linha = primeira; linha <= ultima; ++linha) {
        Escolher(fonte, linha);
        destino.AddItem(fonte.Text());
        destino.ItemData(destino.NewIndex(), fonte.ItemData(fonte.ListIndex()));
    }
}

// The guard keeps a filter's Click from reloading the list.
void frmLista::Escolher(KVComboBox& combo, Integer linha)
{
    IgnorarClick = true;
    combo.ListIndex(linha);
}

} // namespace kova::agenda
