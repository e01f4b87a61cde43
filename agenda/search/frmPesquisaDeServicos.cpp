#include "agenda/search/frmPesquisaDeServicos.hpp"

#include "agenda/search/frmPesquisaDeServicos_design.hpp"
#include "agenda/search/search_dialog.hpp"
#include "agenda/shared/border_shape.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"
#include "agenda/shared/wait_plate.hpp"

#include <array>
#include <utility>

namespace kova::agenda {

namespace {

using grid_alignment::CentreMiddle;
using grid_alignment::LeftMiddle;
using grid_alignment::RightMiddle;

constexpr std::array<ColunaDePesquisa, 8> Colunas{{
    {"Coluna em branco", 0, LeftMiddle, ""},
    {"Código", 1100, LeftMiddle, "Codigo"},
    {"Nome", 4200, LeftMiddle, "Nome"},
    {"Descrição", 6020, LeftMiddle, "Descricao"},
    {"Valor", 2100, CentreMiddle, "ValorDeVenda"},
    {"Custo", 0, LeftMiddle, "Custo"},
    {"Número do tipo de serviço", 0, RightMiddle, "NumeroDoTipoDeServico"},
    {"Tempo de execução do serviço", 0, RightMiddle, "TempoDeExecucao"},
}};

} // namespace

std::shared_ptr<frmPesquisaDeServicos> frmPesquisaDeServicos::Criar()
{
    std::shared_ptr<frmPesquisaDeServicos> pesquisa(new frmPesquisaDeServicos);
    pesquisa->Formulario->Owner(pesquisa);
    return pesquisa;
}

frmPesquisaDeServicos::frmPesquisaDeServicos()
    : Formulario(ThePlatform().Toolkit().CreateForm(DesenhoDefrmPesquisaDeServicos()))
{
    LigarEventos();
}

void frmPesquisaDeServicos::LigarEventos()
{
    Formulario->OnLoad([this] { Form_Load(); });
    Formulario->OnActivate([this] { Form_Activate(); });
    Formulario->OnResize([this] { Form_Resize(); });
    Formulario->OnUnload([this](bool&) { Form_Unload(); });
    kvcmbTiposDeServicos.OnClick([this] { kvcmbTiposDeServicos_Click(); });
    kvfndCodigoOuNome.OnClick([this] { kvfndCodigoOuNome_Click(); });
    msfgGrade.OnClick([this] { msfgGrade_Click(); });
    kvcmdFechar.OnClick([this] { kvcmdFechar_Click(); });
}

Integer frmPesquisaDeServicos::ConfigurarGrade()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose: the list's.
    Trap(", frmLista, ConfigurarGrade, Ponto: ", Ponto, [&] {
        Formulario->Load();

        Ponto = 1;
        EsvaziarGradeDePesquisa(msfgGrade);

        Ponto = 2;
        DefinirColunasDaPesquisa(msfgGrade, Colunas);
    });
    return 0;
}

Integer frmPesquisaDeServicos::PreencherGrade(RecordSet& registros)
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose: the list's.
    Trap(", frmLista, PreencherGrade, Ponto: ", Ponto, [&] {
        Ponto = 1;
        PreencherLinhasDaPesquisa(msfgGrade, Colunas, registros);

        // Only this dialog's fill shows the grid.
        Ponto = 2;
        msfgGrade.Visible(true);
    });
    return 0;
}

void frmPesquisaDeServicos::CentralizarpicMensagem() { CentralizarPlacaDeEspera(*Formulario, picMensagem); }

void frmPesquisaDeServicos::ExibirOcultarpicMensagem(bool Exibir)
{
    ExibirOcultarPlacaDeEspera(*Formulario, picMensagem, Exibir);
}

void frmPesquisaDeServicos::PreencherComboboxTiposDeServicos()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeServicos, PreencherComboboxTiposDeServicos, Ponto: ", Ponto, [&] {
        Ponto = 1;
        ComponentRef objTipos = CreateObject("KOVA_N_TipoDeServ.clsTiposDeServ");

        Ponto = 2;
        Principal.FiltroDosTiposDeServicos = 0;
        if (objTipos->Call("SelecionarParaComboBox", {ByRef(Principal.FiltroDosTiposDeServicos)}).ToInteger()
            != 0) {
            MensagemDeErroDoObjeto(*objTipos);
            return;
        }

        Ponto = 3;
        const auto registros = objTipos->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objTipos.reset();
        if (registros->RecordCount() == 0) {
            ExibirInformacao(
                Text("Nenhum tipo de serviço cadastrado.") + QuebraDeLinha
                + "É necessário ter no mínimo um tipo de serviço cadastrado para incluir um agendamento.");
            return;
        }

        Ponto = 4;
        kvcmbTiposDeServicos.Clear();
        kvcmbTiposDeServicos.AddItem("(Todos)");
        kvcmbTiposDeServicos.ItemData(kvcmbTiposDeServicos.NewIndex(), 0);
        for (; !registros->Eof(); registros->MoveNext()) {
            kvcmbTiposDeServicos.AddItem(registros->Field("Nome").ToText());
            kvcmbTiposDeServicos.ItemData(kvcmbTiposDeServicos.NewIndex(),
                                          registros->Field("Numero").ToLong());
        }
    });
}

void frmPesquisaDeServicos::Form_Load()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeServicos, Form_Load, Ponto: ", Ponto, [&] {
        Ponto = 1;
        AplicarBordaDoFormulario(*Formulario);

        Ponto = 2;
        if (EfetuarOPreenchimentoDaComboboxTiposDeServicos) {
            PreencherComboboxTiposDeServicos();
            if (kvcmbTiposDeServicos.ListCount() > 0) {
                Principal.IgnorarClickDoTipoNaPesquisa = true;
                kvcmbTiposDeServicos.ListIndex(0);
            }
        }

        Ponto = 3;
        kvcmdFechar.ToolTipText("Cancelar a pesquisa e fechar");
    });
}

void frmPesquisaDeServicos::Form_Activate() { RegistroSelecionado = false; }

void frmPesquisaDeServicos::Form_Resize()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeServicos, Form_Resize, Ponto: ", Ponto, [&] {
        Ponto = 1;
        DisporGradeEBotao(*Formulario, msfgGrade, kvcmdFechar);

        // Only this dialog forgets here that its box is to be ignored.
        Ponto = 2;
        IgnorarPesquisa = false;
    });
}

void frmPesquisaDeServicos::Form_Unload() { RegistroSelecionado = false; }

void frmPesquisaDeServicos::kvcmbTiposDeServicos_Click()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeServicos, kvcmbTiposDeServicos_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        kvfndCodigoOuNome.Enabled(true);
        if (std::exchange(Principal.IgnorarClickDoTipoNaPesquisa, false))
            return;

        Ponto = 2;
        ConfigurarGrade();
        IgnorarPesquisa = false;

        Ponto = 3;
        kvfndCodigoOuNome.Status(find_status::Clear);
        kvfndCodigoOuNome.Text("");
        kvfndCodigoOuNome.SetFocus();
    });
}

void frmPesquisaDeServicos::kvcmdFechar_Click()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeServicos, kvcmdFechar_Click, Ponto: ", Ponto, [&] {
        // Only this dialog validates before it closes; every row passes.
        Ponto = 1;
        ValidarCampos();

        Ponto = 2;
        RegistroSelecionado = false;
        Formulario->Hide();
    });
}

} // namespace kova::agenda
