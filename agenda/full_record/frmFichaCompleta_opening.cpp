// Opening: the form is filled for an operation and shown until it is closed.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

void frmFichaCompleta::MontarExibirFormulario(Integer Operacao)
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, MontarExibirFormulario, Ponto: ", Ponto, [&] {
        Ponto = 1;
        Estado.TipoDeOperacao = Operacao;
        DomingoOuFeriado = false;
        Estado.IgnorarEventoDeCampo = true;

        Ponto = 2;
        if (kvcmbReagendar.ListCount() == 0) {
            PreencherkvcmbReagendarPor();
            PreencherkvComboBoxsSimENao();
        }

        Ponto = 3;
        if (Operacao == operacao::Adicionar)
            PreencherParaAdicionar();
        else
            PreencherComALinhaDaLista(Ponto);

        Ponto = 10;
        MontarModo();

        Ponto = 11;
        RedimensionaEReposicionaCampos();

        Ponto = 12;
        ExibirFicha(*Formulario, Estado);
    });
}

void frmFichaCompleta::PreencherParaAdicionar()
{
    Estado.NumeroDeLancamento = 0;
    kvdtpDataInicial.Text(Principal.DataDaAgenda);
    // Any other row's logic has run when the opener chose it.
    if (kvcmbTiposDeServicos.ListIndex() == 0)
        kvcmbTiposDeServicos.ListIndex(0);
}

void frmFichaCompleta::PreencherComALinhaDaLista(Integer& Ponto)
{
    txtPesquisarPor.Visible(false);
    optAgendarPorCliente.Visible(false);
    optAgendarPorAnimal.Visible(false);

    const auto lista = ListaAberta();
    const MSFlexGrid& grade = lista->Grade();
    const Long linha = grade.RowSel();
    const auto celula = [&](Long coluna) { return grade.TextMatrix(linha, coluna); };

    Ponto = 4;
    Estado.NumeroDeLancamento = Val(celula(colunas::NumeroDeLancamento));
    kvfCodigoDoCliente.Text(celula(colunas::CodigoDoCliente));
    kvfApelidoOuNomeFantasiaDoCliente.Text(celula(colunas::ApelidoOuNomeFantasiaDoCliente));
    kvfNomeOuRazaoSocialDoCliente.Text(celula(colunas::NomeOuRazaoSocialDoCliente));
    kvfEnderecoDoCliente.Text(celula(colunas::EnderecoCompletoComCEP));
    kvtxtTiposECanaisDeComunicacao.Text(celula(colunas::TiposECanaisDeComunicacao));

    Ponto = 5;
    PreencherAnimal(celula(colunas::CodigoDoAnimal), celula(colunas::NomeDoAnimal));

    // Choosing the type must not empty the service: its click is swallowed, found or not.
    Ponto = 6;
    Estado.IgnorarEventoDeCampo = true;
    SelecionarPelaCelula(kvcmbTiposDeServicos, celula(colunas::NumeroDoTipoDeServico));
    Estado.IgnorarEventoDeCampo = true;

    Ponto = 7;
    kvfCodigoDoServico.Text(celula(colunas::CodigoDoServico));
    kvfNomeDoServico.Text(celula(colunas::NomeDoServico));
    kvdtpDataInicial.Text(celula(colunas::DataInicial));
    kvtimHoraInicial.Text(celula(colunas::HoraInicial));
    kvdtpDataFinal.Text(celula(colunas::DataFinal));
    kvtimHoraFinal.Text(celula(colunas::HoraFinal));

    Ponto = 8;
    Estado.IgnorarEventoDeCampo = true;
    SelecionarPelaCelula(kvcmbFuncionarios, celula(colunas::CodigoDoFuncionario));
    Estado.IgnorarEventoDeCampo = false;

    Ponto = 9;
    kvtxtTempoDoServico.Text(celula(colunas::TempoDeExecucao));
    kvtxtObservacaoDoServico.Text(celula(colunas::Observacao));
    kvcmbBuscar.Text(celula(colunas::TransporteBuscar));
    kvcmbLevar.Text(celula(colunas::TransporteLevar));
    SelecionarPelaCelula(kvcmbSituacao, celula(colunas::Situacao));
}

void frmFichaCompleta::PreencherAnimal(const Text& codigo, const Text& nome)
{
    if (Estado.TipoDeOperacao != operacao::Excluir) {
        PreencherComboboxAnimal(Val(kvfCodigoDoCliente.Text()));
        SelecionarPelaCelula(kvcmbAnimal, codigo);
        return;
    }
    // What is about to be deleted is only shown: the list of the customer's animals is not asked for.
    kvcmbAnimal.Clear();
    kvcmbAnimal.AddItem(nome);
    kvcmbAnimal.ItemData(kvcmbAnimal.NewIndex(), RoundToLong(Val(codigo)));
    kvcmbAnimal.ListIndex(0);
}

} // namespace kova::agenda
