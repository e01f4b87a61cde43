#include "agenda/list/frmLista.hpp"

#include "agenda/contracts/text.hpp"
#include "agenda/list/frmLista_design.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modFundoEscuro.hpp"
#include "agenda/shared/modLerGravarEmArquivoIni.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

#include <algorithm>

namespace kova::agenda {

namespace {

constexpr const char* SecaoDoPainel = "ExibirPainel";
constexpr const char* ChaveDoPainel = "CheckBoxExibirPainel";

/// What tells the fill of one filter combo from the fill of the other.
struct PreenchimentoDeCombo {
    const char* classe;
    const char* primeiraLinha;
    const char* campoDoTexto;
    const char* campoDoItemData;
    Double& filtro;
    const char* mensagem;
    const char* complementoDaMensagem;
    /// Another procedure's tag, on purpose: the full record's.
    const char* rotulo;
};

void PreencherComASelecao(KVComboBox& combo, RecordSet& registros, const PreenchimentoDeCombo& tabela)
{
    combo.Clear();
    combo.AddItem(tabela.primeiraLinha);
    combo.ItemData(combo.NewIndex(), 0);
    while (!registros.Eof()) {
        combo.AddItem(registros.Field(tabela.campoDoTexto).ToText());
        combo.ItemData(combo.NewIndex(), registros.Field(tabela.campoDoItemData).ToLong());
        registros.MoveNext();
    }
}

Integer PreencherCombo(KVComboBox& combo, const PreenchimentoDeCombo& tabela)
{
    Integer Ponto = 0;
    Integer resultado = 0;
    Trap(tabela.rotulo, Ponto, [&] {
        Ponto = 1;
        ComponentRef objeto = CreateObject(tabela.classe);

        Ponto = 2;
        tabela.filtro = 0;
        if (objeto->Call("SelecionarParaComboBox", {ByRef(tabela.filtro)}).ToInteger() != 0) {
            Ponto = 3;
            MensagemDeErroDoObjeto(*objeto);
            objeto.reset();
            RemoverFundoEscuro(Principal.HandleDaJanelaPrincipal);
            resultado = 1;
            return;
        }

        Ponto = 4;
        const auto registros = objeto->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        if (registros->RecordCount() == 0) {
            objeto.reset();
            ExibirInformacao(Text(tabela.mensagem) + QuebraDeLinha + tabela.complementoDaMensagem);
            // The answer stands before the dimming goes, which may fail. After a failed call it comes later.
            resultado = 1;
            RemoverFundoEscuro(Principal.HandleDaJanelaPrincipal);
            return;
        }

        Ponto = 5;
        objeto.reset();
        PreencherComASelecao(combo, *registros, tabela);
    });
    return resultado;
}

} // namespace

std::shared_ptr<frmLista> frmLista::Criar()
{
    std::shared_ptr<frmLista> lista(new frmLista);
    lista->Formulario->Owner(lista);
    Principal.ListasAbertas.push_back(lista);
    return lista;
}

frmLista::frmLista() : Formulario(ThePlatform().Toolkit().CreateForm(DesenhoDefrmLista())) { LigarEventos(); }

void frmLista::LigarEventos()
{
    Formulario->OnResize([this] { Form_Resize(); });
    Formulario->OnUnload([this](bool&) { AoDescarregar(); });

    kvcmbSituacao.OnClick([this] { kvcmbSituacao_Click(); });
    kvcmbTiposDeServicos.OnClick([this] { kvcmbTiposDeServicos_Click(); });
    kvcmbFuncionarios.OnClick([this] { kvcmbFuncionarios_Click(); });
    kvfndPesquisar.OnClick([this] { kvfndPesquisar_Click(); });
    kvcmdIrParaDiaAnterior.OnClick([this] { kvcmdIrParaDiaAnterior_Click(); });
    kvcmdIrParaDiaPosterior.OnClick([this] { kvcmdIrParaDiaPosterior_Click(); });
    kvdtpDataDeAgendamento.OnChange([this] { kvdtpDataDeAgendamento_Change(); });
    kvdtpDataDeAgendamento.OnGotFocus([this] { kvdtpDataDeAgendamento_GotFocus(); });
    kvdtpDataDeAgendamento.OnLostFocus([this] { kvdtpDataDeAgendamento_LostFocus(); });
    kvnbBarraDeNavegacao.OnClick([this](Integer& Botao) { kvnbBarraDeNavegacao_Click(Botao); });
    chkExibirPainel.OnClick([this] { chkExibirPainel_Click(); });

    kvcmdAdicionar.OnClick([this] { kvcmdAdicionar_Click(); });
    mnuAdicionarAgendamentoCompleto.OnClick([this] { mnuAdicionarAgendamentoCompleto_Click(); });
    mnuAdicionarAgendamentoSimplificado.OnClick([this] { mnuAdicionarAgendamentoSimplificado_Click(); });
    kvcmdDetalhar.OnClick([this] { kvcmdDetalhar_Click(); });
    kvcmdAlterar.OnClick([this] { kvcmdAlterar_Click(); });
    kvcmdExcluir.OnClick([this] { kvcmdExcluir_Click(); });

    kvcmdMarcarAgendamentoComoAgendado.OnClick([this] { kvcmdMarcarAgendamentoComoAgendado_Click(); });
    kvcmdMarcarAgendamentoComoAtendido.OnClick([this] { kvcmdMarcarAgendamentoComoAtendido_Click(); });
    kvcmdMarcarAgendamentoComoCancelado.OnClick([this] { kvcmdMarcarAgendamentoComoCancelado_Click(); });
    kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda.OnClick(
        [this] { kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda_Click(); });

    kvcmdImprimirLista.OnClick([this] { kvcmdImprimirLista_Click(); });
    mnuImprimirListaDeAgendamentos.OnClick([this] { mnuImprimirListaDeAgendamentos_Click(); });
    mnuImprimirListaDeAgendamentosParaTransporte.OnClick(
        [this] { mnuImprimirListaDeAgendamentosParaTransporte_Click(); });
    kvcmdImprimirFicha.OnClick([this] { kvcmdImprimirFicha_Click(); });
    mnuImprimirFichaDoAgendamentoParaTransporte.OnClick(
        [this] { mnuImprimirFichaDoAgendamentoParaTransporte_Click(); });
    mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal.OnClick(
        [this] { mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal_Click(); });
    mnuImprimirEtiquetaDeEndereco.OnClick([this] { mnuImprimirEtiquetaDeEndereco_Click(); });

    msfgGrade.OnSelChange([this] { msfgGrade_SelChange(); });
    msfgGrade.OnMouseMove([this](Integer Button, Integer Shift, Twips X, Twips Y) {
        msfgGrade_MouseMove(Button, Shift, X, Y);
    });
}

void frmLista::AoDescarregar()
{
    auto& abertas = Principal.ListasAbertas;
    std::erase_if(abertas, [this](const auto& lista) { return lista.get() == this; });
    if (Principal.FormularioDaLista.get() == this)
        Principal.FormularioDaLista.reset();
}

Integer frmLista::MontarExibirFormulario(Long HandleDoContainer)
{
    Integer Ponto = 0;
    return Trap(", frmLista, MontarExibirFormulario, Ponto: ", Ponto, [&]() -> Integer {
        Ponto = 1;
        Formulario->SetParent(HandleDoContainer);

        Ponto = 2;
        PreencherComboBoxDeSituacao();
        IgnorarClick = true;
        kvcmbSituacao.ListIndex(0);
        kvdtpDataDeAgendamento.Text(FormatDate(ThePlatform().Clock().Now().date));

        Ponto = 3;
        PreencherDicasDosBotoes();

        Ponto = 4;
        if (PreencherComboboxTiposDeServicos() != 0)
            return 1;
        IgnorarClick = true;
        kvcmbTiposDeServicos.ListIndex(0);

        Ponto = 5;
        if (PreencherComboboxFuncionarios() != 0)
            return 1;

        Ponto = 6;
        IgnorarClick = true;
        kvcmbFuncionarios.ListIndex(0);
        ConfigurarGrade();

        Ponto = 7;
        LerExibicaoDoPainel();

        // Showing runs Form_Resize, which sets RegistrosPorPagina.
        Formulario->Show(ShowMode::Modeless);

        Ponto = 8;
        objAgendaDaLista = CreateObject("KOVA_N_Agenda.clsAgenda");

        Ponto = 9;
        if (GerarLista() != 0)
            return 1;
        Ponto = 10;
        PaginaAtual = 1;
        AtualizarObjetos(1);
        Ponto = 11;
        return 0;
    });
}

void frmLista::PreencherComboBoxDeSituacao()
{
    Integer Ponto = 0;
    Trap(", frmLista, PreencherComboBoxDeSituacao, Ponto: ", Ponto, [&] {
        Ponto = 1;
        kvcmbSituacao.Clear();
        const auto adicionar = [this](const char* texto, Long numero) {
            kvcmbSituacao.AddItem(texto);
            kvcmbSituacao.ItemData(kvcmbSituacao.NewIndex(), numero);
        };
        adicionar("Todas as situações", 0);
        for (Integer numero = situacao::Agendado; numero <= situacao::AtendidoEGeradoPreVenda; ++numero)
            adicionar(situacao::Nomes[static_cast<std::size_t>(numero)], numero);
    });
}

Integer frmLista::PreencherComboboxTiposDeServicos()
{
    return PreencherCombo(
        kvcmbTiposDeServicos,
        {.classe = "KOVA_N_TipoDeServ.clsTiposDeServ",
         .primeiraLinha = "(Tipos de Serviços)",
         .campoDoTexto = "Nome",
         .campoDoItemData = "Numero",
         .filtro = Principal.FiltroDosTiposDeServicos,
         .mensagem = "Nenhum tipo de serviço cadastrado.",
         .complementoDaMensagem =
             "É necessário ter no mínimo um tipo de serviço cadastrado para incluir um agendamento.",
         .rotulo = ", frmFichaCompleta, PreencherComboboxTiposDeServicos, Ponto: "});
}

Integer frmLista::PreencherComboboxFuncionarios()
{
    return PreencherCombo(
        kvcmbFuncionarios,
        {.classe = "KOVA_N_Funcionarios.clsFuncionarios",
         .primeiraLinha = "(Funcionários)",
         .campoDoTexto = "Apelido",
         .campoDoItemData = "Codigo",
         .filtro = Principal.FiltroDosFuncionarios,
         .mensagem = "Nenhum funcionário cadastrado.",
         .complementoDaMensagem =
             "É necessário ter no mínimo um funcionário cadastrado para incluir um agendamento.",
         .rotulo = ", frmFichaCompleta, PreencherComboboxFuncionarios, Ponto: "});
}

void frmLista::PreencherDicasDosBotoes()
{
    const struct {
        KVCommandButton& botao;
        const char* dica;
    } dicas[] = {
        {kvcmdMarcarAgendamentoComoAgendado, "Marcar agendamento como agendado"},
        {kvcmdMarcarAgendamentoComoAtendido, "Marcar agendamento como atendido"},
        {kvcmdMarcarAgendamentoComoCancelado, "Marcar agendamento como cancelado"},
        {kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda,
         "Marcar agendamento como atendido e gerado pré-venda"},
        {kvcmdDetalhar, "Detalhar"},
        {kvcmdAlterar, "Alterar"},
        {kvcmdExcluir, "Excluir"},
        {kvcmdImprimirFicha, "Imprimir fichas ou etiqueta"},
        {kvcmdImprimirLista, "Imprimir lista"},
    };
    for (const auto& [botao, dica] : dicas) {
        botao.ToolTipType(0);
        botao.ToolTipText(dica);
    }
}

void frmLista::LerExibicaoDoPainel()
{
    IgnorarClickDoPainel = true;
    const Text valor = LerArquivoIni(SecaoDoPainel, ChaveDoPainel);
    if (valor == NenhumValorLido) {
        GravarArquivoIni(SecaoDoPainel, ChaveDoPainel, "1");
        chkExibirPainel.Value(1);
    } else {
        chkExibirPainel.Value(RoundToInteger(Val(valor)));
    }
    LinhasDoPainel = chkExibirPainel.Value() == 1 ? 2 : 0;
    IgnorarClickDoPainel = false;
}

} // namespace kova::agenda
