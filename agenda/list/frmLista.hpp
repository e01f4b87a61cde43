#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/widgets.hpp"
#include "agenda/shared/day_list.hpp"

#include <array>
#include <memory>

namespace kova::agenda {

struct FichaDaLista;
struct FichaImpressa;

/// The module's main screen: one day's appointments in a paged grid, with filters above it, a detail
/// panel below it and the buttons of the row under the mouse.
///
/// Its procedures lie by concern: frmLista.cpp sets it up, frmLista_list.cpp loads and pages it,
/// frmLista_grid.cpp fills the grid and follows the mouse, frmLista_filters.cpp answers the filters,
/// frmLista_status.cpp the status buttons, frmLista_records.cpp opens the record forms, frmLista_printing.cpp
/// the list's print dialog, frmLista_cards.cpp prints what concerns one row, frmLista_panel.cpp and
/// frmLista_layout.cpp place things, frmLista_wait.cpp shows the wait plate.
class frmLista : public ListaDoDia, public std::enable_shared_from_this<frmLista> {
public:
    /// A new list, hidden, on the toolkit of the host. It lives until its form is unloaded.
    static std::shared_ptr<frmLista> Criar();

    /// Builds the whole list inside the container and shows it. 1 where a filter could not be filled or the
    /// first selection failed; 0 when done, but also after a reported failure.
    Integer MontarExibirFormulario(Long HandleDoContainer);
    /// Gives the grid its look and its columns; it is hidden then, and its rows are gone. Answers 0, also
    /// after a reported failure.
    Integer ConfigurarGrade();
    /// Runs a new selection with all filters. 1 where the business tier says that it failed; 0 when done, but
    /// also after a reported failure.
    Integer GerarLista();
    /// Shows the page PaginaAtual and the numbers of the bar. Modo says how the page was reached, by which
    /// the numbers are worked out: 1 first, 2 previous, 3 next, 4 last page; any other value works them out
    /// from PaginaAtual.
    void AtualizarObjetos(Integer Modo);
    /// Writes the appointment of the current row into the panel and lets its labels flow. The row is that of
    /// the list in FormularioDaLista.
    void AtualizarPainel();
    void ExibirOuOcultarPainel(bool& Exibir);
    /// The wait plate: true shows it and waits one second, false hides it.
    void ExibirOcultarpicMensagem(bool Exibir);

    const MSFlexGrid& Grade() const override { return msfgGrade; }
    void Redesenhar() override { Formulario->Refresh(); }

    FormRef Formulario;

    // The head and the filters.
    Label& lblTitulo = Bind<Label>(Formulario, "lblTitulo");
    KVCommandButton& kvcmdAdicionar = Bind<KVCommandButton>(Formulario, "kvcmdAdicionar");
    KVFind& kvfndPesquisar = Bind<KVFind>(Formulario, "kvfndPesquisar");
    KVComboBox& kvcmbSituacao = Bind<KVComboBox>(Formulario, "kvcmbSituacao");
    KVComboBox& kvcmbTiposDeServicos = Bind<KVComboBox>(Formulario, "kvcmbTiposDeServicos");
    KVComboBox& kvcmbFuncionarios = Bind<KVComboBox>(Formulario, "kvcmbFuncionarios");
    KVCommandButton& kvcmdIrParaDiaAnterior = Bind<KVCommandButton>(Formulario, "kvcmdIrParaDiaAnterior");
    KVDTPicker& kvdtpDataDeAgendamento = Bind<KVDTPicker>(Formulario, "kvdtpDataDeAgendamento");
    KVCommandButton& kvcmdIrParaDiaPosterior = Bind<KVCommandButton>(Formulario, "kvcmdIrParaDiaPosterior");
    KVCommandButton& kvcmdImprimirLista = Bind<KVCommandButton>(Formulario, "kvcmdImprimirLista");
    KVNavigationBar& kvnbBarraDeNavegacao = Bind<KVNavigationBar>(Formulario, "kvnbBarraDeNavegacao");
    Label& lblExibirPainel = Bind<Label>(Formulario, "lblExibirPainel");
    CheckBox& chkExibirPainel = Bind<CheckBox>(Formulario, "chkExibirPainel");
    Label& lblMensagemDeResultado = Bind<Label>(Formulario, "lblMensagemDeResultado");

    // The grid, its pictures and the buttons of the row under the mouse.
    MSFlexGrid& msfgGrade = Bind<MSFlexGrid>(Formulario, "msfgGrade");
    Image& imgEtiqueta_Situacao_Agendado = Bind<Image>(Formulario, "imgEtiqueta_Situacao_Agendado");
    Image& imgEtiqueta_Situacao_Atendido = Bind<Image>(Formulario, "imgEtiqueta_Situacao_Atendido");
    Image& imgEtiqueta_Situacao_Cancelado = Bind<Image>(Formulario, "imgEtiqueta_Situacao_Cancelado");
    Image& imgEtiqueta_Situacao_Atendido_Gerado_PreVenda =
        Bind<Image>(Formulario, "imgEtiqueta_Situacao_Atendido_Gerado_PreVenda");
    KVCommandButton& kvcmdMarcarAgendamentoComoAgendado =
        Bind<KVCommandButton>(Formulario, "kvcmdMarcarAgendamentoComoAgendado");
    KVCommandButton& kvcmdMarcarAgendamentoComoAtendido =
        Bind<KVCommandButton>(Formulario, "kvcmdMarcarAgendamentoComoAtendido");
    KVCommandButton& kvcmdMarcarAgendamentoComoCancelado =
        Bind<KVCommandButton>(Formulario, "kvcmdMarcarAgendamentoComoCancelado");
    KVCommandButton& kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda =
        Bind<KVCommandButton>(Formulario, "kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda");
    KVCommandButton& kvcmdDetalhar = Bind<KVCommandButton>(Formulario, "kvcmdDetalhar");
    KVCommandButton& kvcmdAlterar = Bind<KVCommandButton>(Formulario, "kvcmdAlterar");
    KVCommandButton& kvcmdExcluir = Bind<KVCommandButton>(Formulario, "kvcmdExcluir");
    KVCommandButton& kvcmdImprimirFicha = Bind<KVCommandButton>(Formulario, "kvcmdImprimirFicha");

    // The wait plate.
    PictureBox& picMensagem = Bind<PictureBox>(Formulario, "picMensagem");

    // The panel: each value stands after its title.
    PictureBox& picPainel = Bind<PictureBox>(Formulario, "picPainel");
    Shape& shpShape1 = Bind<Shape>(Formulario, "shpShape1");
    Shape& shpShape2 = Bind<Shape>(Formulario, "shpShape2");
    Label& lblTitulo_ApelidoOuNomeFantasiaDoCliente =
        Bind<Label>(Formulario, "lblTitulo_ApelidoOuNomeFantasiaDoCliente");
    Label& lblApelidoOuNomeFantasiaDoCliente = Bind<Label>(Formulario, "lblApelidoOuNomeFantasiaDoCliente");
    Label& lblTitulo_NomeOuRazaoSocialDoCliente =
        Bind<Label>(Formulario, "lblTitulo_NomeOuRazaoSocialDoCliente");
    Label& lblNomeOuRazaoSocialDoCliente = Bind<Label>(Formulario, "lblNomeOuRazaoSocialDoCliente");
    Label& lblTitulo_ComunicacaoDoCliente = Bind<Label>(Formulario, "lblTitulo_ComunicacaoDoCliente");
    Label& lblComunicacaoDoCliente = Bind<Label>(Formulario, "lblComunicacaoDoCliente");
    Label& lblTitulo_NomeDoAnimal = Bind<Label>(Formulario, "lblTitulo_NomeDoAnimal");
    Label& lblNomeDoAnimal = Bind<Label>(Formulario, "lblNomeDoAnimal");
    Label& lblTitulo_SexoDoAnimal = Bind<Label>(Formulario, "lblTitulo_SexoDoAnimal");
    Label& lblSexoDoAnimal = Bind<Label>(Formulario, "lblSexoDoAnimal");
    Label& lblTitulo_PorteDoAnimal = Bind<Label>(Formulario, "lblTitulo_PorteDoAnimal");
    Label& lblPorteDoAnimal = Bind<Label>(Formulario, "lblPorteDoAnimal");
    Label& lblTitulo_EspecieDoAnimal = Bind<Label>(Formulario, "lblTitulo_EspecieDoAnimal");
    Label& lblEspecieDoAnimal = Bind<Label>(Formulario, "lblEspecieDoAnimal");
    Label& lblTitulo_RacaDoAnimal = Bind<Label>(Formulario, "lblTitulo_RacaDoAnimal");
    Label& lblRacaDoAnimal = Bind<Label>(Formulario, "lblRacaDoAnimal");
    Label& lblTitulo_ObservacaoDoAnimal = Bind<Label>(Formulario, "lblTitulo_ObservacaoDoAnimal");
    Label& lblObservacaoDoAnimal = Bind<Label>(Formulario, "lblObservacaoDoAnimal");
    Label& lblTitulo_InicioDoServico = Bind<Label>(Formulario, "lblTitulo_InicioDoServico");
    Label& lblInicioDoServico = Bind<Label>(Formulario, "lblInicioDoServico");
    Label& lblTitulo_FimDoServico = Bind<Label>(Formulario, "lblTitulo_FimDoServico");
    Label& lblFimDoServico = Bind<Label>(Formulario, "lblFimDoServico");
    Label& lblTitulo_NomeDoServico = Bind<Label>(Formulario, "lblTitulo_NomeDoServico");
    Label& lblNomeDoServico = Bind<Label>(Formulario, "lblNomeDoServico");
    Label& lblTitulo_Funcionario = Bind<Label>(Formulario, "lblTitulo_Funcionario");
    Label& lblNomeDoFuncionario = Bind<Label>(Formulario, "lblNomeDoFuncionario");
    Label& lblTitulo_TransporteBuscar = Bind<Label>(Formulario, "lblTitulo_TransporteBuscar");
    Label& lblTransporteBuscar = Bind<Label>(Formulario, "lblTransporteBuscar");
    Label& lblTitulo_TransporteLevar = Bind<Label>(Formulario, "lblTitulo_TransporteLevar");
    Label& lblTransporteLevar = Bind<Label>(Formulario, "lblTransporteLevar");
    Label& lblTitulo_ObservacaoDoAgendamento = Bind<Label>(Formulario, "lblTitulo_ObservacaoDoAgendamento");
    Label& lblObservacaoDoAgendamento = Bind<Label>(Formulario, "lblObservacaoDoAgendamento");
    Label& lblTitulo_IncluidoOuAlteradoPor = Bind<Label>(Formulario, "lblTitulo_IncluidoOuAlteradoPor");
    Label& lblIncluidoOuAlteradoPor = Bind<Label>(Formulario, "lblIncluidoOuAlteradoPor");

    // Pop-up menus: each parent is hidden and holds the entries that follow it.
    Menu& mnuAdicionarAgendamento = Bind<Menu>(Formulario, "mnuAdicionarAgendamento");
    Menu& mnuAdicionarAgendamentoCompleto = Bind<Menu>(Formulario, "mnuAdicionarAgendamentoCompleto");
    Menu& mnuAdicionarAgendamentoSimplificado = Bind<Menu>(Formulario, "mnuAdicionarAgendamentoSimplificado");
    Menu& mnuImprimirLista = Bind<Menu>(Formulario, "mnuImprimirLista");
    Menu& mnuImprimirListaDeAgendamentos = Bind<Menu>(Formulario, "mnuImprimirListaDeAgendamentos");
    Menu& mnuImprimirListaDeAgendamentosParaTransporte =
        Bind<Menu>(Formulario, "mnuImprimirListaDeAgendamentosParaTransporte");
    Menu& mnuImprimirFicha = Bind<Menu>(Formulario, "mnuImprimirFicha");
    Menu& mnuImprimirFichaDoAgendamentoParaTransporte =
        Bind<Menu>(Formulario, "mnuImprimirFichaDoAgendamentoParaTransporte");
    Menu& mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal =
        Bind<Menu>(Formulario, "mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal");
    Menu& mnuImprimirEtiquetaDeEndereco = Bind<Menu>(Formulario, "mnuImprimirEtiquetaDeEndereco");

    /// The list's one long-lived business object; it holds the last selection.
    ComponentRef objAgendaDaLista;
    /// Rows of a page. Form_Resize computes it from the grid's height; 0 or less on a tiny window.
    Integer RegistrosPorPagina = 0;
    /// The page that PreencherGrade shows, from 1.
    Integer PaginaAtual = 0;
    /// Swallows the next Click of a filter; set just before code changes a filter's ListIndex.
    bool IgnorarClick = false;
    /// The user's edit of the date has reloaded the list already.
    bool DataAlterada = false;
    /// The date's text when its box received the focus.
    Text DataAoEntrar;
    /// Rows of a page given up to the panel: 2 when it is shown, else 0.
    Integer LinhasDoPainel = 0;
    /// Swallows the Click of the panel's check box while the list is built.
    bool IgnorarClickDoPainel = false;
    /// A status is chosen or a search is in force.
    bool ListaFiltrada = false;
    /// Page to come back to once no filter is in force; 0 until entering a filter, a reload or printing has
    /// set it. Printing sets it also under a filter.
    Integer PaginaSalva = 0;

private:
    frmLista();
    void LigarEventos();
    void AoDescarregar();

    void PreencherComboBoxDeSituacao();
    /// 1 where the call failed or there are no rows, of which the user is told; 0 when filled, but also after
    /// a reported failure. The same for the next one.
    Integer PreencherComboboxTiposDeServicos();
    Integer PreencherComboboxFuncionarios();
    void PreencherDicasDosBotoes();
    void LerExibicaoDoPainel();

    RecordSetRef ResultadoDaSelecao();
    void ExibirLista();
    void ExibirListaVazia();
    void PreencherBarraDeNavegacao(Integer Modo, Long total, Integer& Ponto);

    /// Answers 0, also after a reported failure.
    Integer PreencherGrade();
    void PreencherLinha(Long linha, const RecordSet& pagina);
    /// None for a number that no status has, however large.
    Picture FiguraDaSituacao(Double numero) const;
    void msfgGrade_SelChange();
    void msfgGrade_MouseMove(Integer Button, Integer Shift, Twips X, Twips Y);
    void PosicionarBotoesDaLinha();
    std::array<KVCommandButton*, 8> BotoesDaLinha();

    void RecarregarDepoisDaEspera();
    void GuardarPaginaAoFiltrar(bool entraNoFiltro);
    void IrParaOutroDia(Long dias, Integer& Ponto);
    void kvcmbFuncionarios_Click();
    void kvcmbTiposDeServicos_Click();
    void kvcmbSituacao_Click();
    void kvfndPesquisar_Click();
    void kvcmdIrParaDiaAnterior_Click();
    void kvcmdIrParaDiaPosterior_Click();
    void kvdtpDataDeAgendamento_Change();
    void kvdtpDataDeAgendamento_GotFocus();
    void kvdtpDataDeAgendamento_LostFocus();
    void kvnbBarraDeNavegacao_Click(Integer& Botao);

    void kvcmdAdicionar_Click();
    void mnuAdicionarAgendamentoCompleto_Click();
    void mnuAdicionarAgendamentoSimplificado_Click();
    void kvcmdDetalhar_Click();
    void kvcmdAlterar_Click();
    void kvcmdExcluir_Click();
    void AbrirFichaDaLinha(Integer Operacao, Integer ModoDaRecarga, Integer& Ponto);
    Integer UltimaSituacao() const;
    Integer UltimaSituacaoSemPreVenda() const;
    void CopiarSituacoes(KVComboBox& destino, Integer ultima);
    // Each of these two goes on from the checkpoint at which it begins, step by step.
    void CopiarTiposDeServicos(KVComboBox& destino, KVComboBox& comboALimpar, Integer& Ponto);
    void CopiarFuncionarios(KVComboBox& destino, Integer& Ponto);
    /// Adds the filter's rows from `primeira` to `ultima` to another combo.
    void CopiarLinhas(KVComboBox& fonte, KVComboBox& destino, Integer primeira, Integer ultima);
    void Escolher(KVComboBox& combo, Integer linha);

    void kvcmdMarcarAgendamentoComoAgendado_Click();
    void kvcmdMarcarAgendamentoComoAtendido_Click();
    void kvcmdMarcarAgendamentoComoCancelado_Click();
    void kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda_Click();
    void MarcarAgendamento(Integer SituacaoNova, Integer& Ponto);
    bool AlterarSituacaoDoAgendamento(Integer SituacaoNova, Integer SituacaoAtual);
    Text MotivoParaNaoGerarPreVenda();
    bool PerguntarPeloPacote(Integer SituacaoNova);
    Double NumeroDaCelula(Long coluna);

    void kvcmdImprimirLista_Click();
    void mnuImprimirListaDeAgendamentos_Click();
    void mnuImprimirListaDeAgendamentosParaTransporte_Click();
    void AbrirImpressaoDaLista(Integer Tipo, Integer& Ponto);
    void AbrirDialogoDeImpressao(Integer Tipo, Integer& Ponto);
    void CopiarFiltro(KVComboBox& fonte, KVComboBox& destino);

    void kvcmdImprimirFicha_Click();
    void mnuImprimirFichaDoAgendamentoParaTransporte_Click();
    void mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal_Click();
    /// 1 where the company could not be selected; 0 when the preview was closed, but also after a reported
    /// failure. The same for the next one.
    Integer ImprimirFichaDoAgendamentoParaTransporte();
    Integer ImprimirFichaDoAgendamentoParaInspecaoDoAnimal();
    Integer ImprimirFicha(const FichaImpressa& ficha, Integer& Ponto);
    void mnuImprimirEtiquetaDeEndereco_Click();

    void PreencherRotulosDoPainel(const MSFlexGrid& grade);
    void AlinharRotulosDoPainel();
    void chkExibirPainel_Click();

    void Form_Resize();
    void PosicionarFiltros();
    void PosicionarGradeEPainel();
    void AjustarColunasALarguraDaTela();

    void PosicionarpicMensagem();

    /// The row that the mouse was over last; kept also when another page is loaded.
    Integer UltimaLinhaSobOMouse = 0;
};

} // namespace kova::agenda
