// The four status buttons of the row under the mouse.

#include "agenda/contracts/text.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

/// Service types below this one are clinical.
constexpr Double PrimeiroTipoNaoClinico = 4;

} // namespace

void frmLista::kvcmdMarcarAgendamentoComoAgendado_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdMarcarAgendamentoComoAgendado_Click, Ponto: ", Ponto,
         [&] { MarcarAgendamento(situacao::Agendado, Ponto); });
}

void frmLista::kvcmdMarcarAgendamentoComoAtendido_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdMarcarAgendamentoComoAtendido_Click, Ponto: ", Ponto,
         [&] { MarcarAgendamento(situacao::Atendido, Ponto); });
}

void frmLista::kvcmdMarcarAgendamentoComoCancelado_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdMarcarAgendamentoComoCancelado_Click, Ponto: ", Ponto,
         [&] { MarcarAgendamento(situacao::Cancelado, Ponto); });
}

void frmLista::kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda_Click()
{
    Integer Ponto = 0;
    Trap(", frmLista, kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda_Click, Ponto: ", Ponto,
         [&] { MarcarAgendamento(situacao::AtendidoEGeradoPreVenda, Ponto); });
}

Double frmLista::NumeroDaCelula(Long coluna) { return Val(msfgGrade.TextMatrix(msfgGrade.RowSel(), coluna)); }

Text frmLista::MotivoParaNaoGerarPreVenda()
{
    if (NumeroDaCelula(colunas::NumeroDoTipoDeServico) < PrimeiroTipoNaoClinico)
        return "Não é possível gerar pré-venda para serviços tipo clínico.";
    if (NumeroDaCelula(colunas::CodigoDoCliente) == 0)
        return "Não é possível gerar pré-venda para agendamento simplificado.";
    return {};
}

void frmLista::MarcarAgendamento(Integer SituacaoNova, Integer& Ponto)
{
    // No hover moves the row while the command runs.
    Ponto = 1;
    msfgGrade.Enabled(false);

    // The row has that status already.
    if (NumeroDaCelula(colunas::Situacao) == SituacaoNova) {
        msfgGrade.Enabled(true);
        return;
    }

    // A pre-sale needs a service of the shop and a registered customer.
    Ponto = 2;
    if (SituacaoNova == situacao::AtendidoEGeradoPreVenda) {
        const Text motivo = MotivoParaNaoGerarPreVenda();
        if (!motivo.empty()) {
            ExibirInformacao(motivo);
            msfgGrade.Enabled(true);
            return;
        }
    }

    // The write.
    const Long linha = msfgGrade.RowSel();
    const Integer situacaoAtual = RoundToInteger(NumeroDaCelula(colunas::Situacao));
    const bool alterado = AlterarSituacaoDoAgendamento(SituacaoNova, situacaoAtual);

    // A failed write is told, and the command goes on.
    msfgGrade.Enabled(true);
    if (!alterado)
        ExibirInformacao("Não foi possível alterar a situação do agendamento - Tente novamente mais tarde.");

    // The list is fresh on the same page.
    Ponto = 3;
    GerarLista();
    Ponto = 4;
    AtualizarObjetos(5);

    // The same row number is selected again, whatever appointment it now holds.
    Ponto = 5;
    msfgGrade.RowSel(linha);
    msfgGrade.SelectionMode(1);
    msfgGrade.Col(0);
    msfgGrade.Row(linha);
    msfgGrade.ColSel(msfgGrade.Cols() - 1);
}

bool frmLista::AlterarSituacaoDoAgendamento(Integer SituacaoNova, Integer SituacaoAtual)
{
    Integer Ponto = 0;
    return Trap(", frmLista, AlterarSituacaoDoAgendamento, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (!objAgendaDaLista)
            throw Failure(FailureNumber::NoObject);
        Component& agenda = *objAgendaDaLista;
        agenda.Set("AtualizarSomenteOCampoSituacao", true);

        Ponto = 2;
        // Making or undoing a pre-sale takes more than the status.
        if (SituacaoAtual == situacao::AtendidoEGeradoPreVenda
            || SituacaoNova == situacao::AtendidoEGeradoPreVenda) {
            Ponto = 3;
            agenda.Set("CodigoDoCliente", NumeroDaCelula(colunas::CodigoDoCliente));
            Ponto = 4;
            agenda.Set("CodigoDoAnimal", RoundToLong(NumeroDaCelula(colunas::CodigoDoAnimal)));
            Ponto = 5;
            agenda.Set("NumeroDoTipoDeServico", RoundToLong(NumeroDaCelula(colunas::NumeroDoTipoDeServico)));
            Ponto = 6;
            agenda.Set("CodigoDoServico", NumeroDaCelula(colunas::CodigoDoServico));
            Ponto = 7;
            agenda.Set("CodigoDoFuncionario", RoundToLong(NumeroDaCelula(colunas::CodigoDoFuncionario)));
            Ponto = 8;
            agenda.Set("DataInicial", msfgGrade.TextMatrix(msfgGrade.RowSel(), colunas::DataInicial));
        }

        Ponto = 9;
        agenda.Set("SituacaoAtual", SituacaoAtual);
        Ponto = 10;
        agenda.Set("SituacaoNova", SituacaoNova);
        Ponto = 11;
        agenda.Set("NumeroDeLancamento", NumeroDaCelula(colunas::NumeroDeLancamento));
        agenda.Set("DadosDoUsuario", Principal.DadosDoUsuario);

        Ponto = 12;
        if (agenda.Call("Alterar").ToInteger() != 0) {
            Ponto = 14;
            return false;
        }

        Ponto = 13;
        if (agenda.Get("RegistroPercenteAUmPacoteDeBanhoETosa").ToBoolean()
            && PerguntarPeloPacote(SituacaoNova)
            && agenda.Call("AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa", {ByRef(SituacaoNova)})
                    .ToInteger()
                != 0)
            return false;

        Ponto = 15;
        return true;
    });
}

bool frmLista::PerguntarPeloPacote(Integer SituacaoNova)
{
    // Every status but the first reads 'CANCELADO'.
    return Perguntar(Text("Este agendamento pertence a um pacote de banho e tosa.") + QuebraDeLinha
                     + QuebraDeLinha + "Deseja alterar a situação para "
                     + (SituacaoNova == situacao::Agendado ? "'AGENDADO'" : "'CANCELADO'")
                     + " de TODOS os agendamentos deste pacote que não foram atendidos?");
}

} // namespace kova::agenda
