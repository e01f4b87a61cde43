// The commands that open a record form: which form, what its combos get, what happens behind it.

#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/simplified_record/frmFichaSimplificada.hpp"
#include "tests/unit/agenda/module_fixture.hpp"

namespace kova::agenda {

namespace {

const std::string Selecionar = "KOVA_N_Agenda.clsAgenda.Selecionar";
constexpr const char* Simplificado = "mnuAdicionarAgendamentoSimplificado";
constexpr const char* Completo = "mnuAdicionarAgendamentoCompleto";

/// The rows of a combo as "TEXT=NUMBER".
std::vector<std::string> RowsOf(const KVComboBox& combo)
{
    std::vector<std::string> rows;
    for (Integer row = 0; row < combo.ListCount(); ++row)
        rows.push_back(combo.List(row) + "=" + std::to_string(combo.ItemData(row)));
    return rows;
}

using Rows = std::vector<std::string>;

class RecordCommands : public ModuleTest {
protected:
    RecordCommands()
    {
        const auto named = [](const char* code) {
            return scenario::RecordTable{{"Nome", code}, {{"Cão", Long{1}}, {"Gato", Long{2}}}};
        };
        script.Always("KOVA_N_EspecRacas.clsEspecies.SelecionarParaComboBox", {.records = named("Codigo")});
        script.Always("KOVA_N_EspecRacas.clsRacas.SelecionarParaComboBox", {.records = named("Codigo")});
        script.Always("KOVA_N_ClientAnim.clsAnimais.SelecionarParaComboBoxFiltradoPorCliente",
                      {.records = scenario::RecordTable{{"Nome", "Codigo"}, {{"Rex", Long{3}}}}});
    }

    /// A list with one simplified row and one of a registered customer.
    std::shared_ptr<frmLista> OpenOnBothKinds()
    {
        script.Always(Selecionar,
                      {.records = Table({Appointment(1, {{"CodigoDoCliente", ""}, {"CodigoDoAnimal", ""}}),
                                         Appointment(2)})});
        auto lista = Open();
        return lista;
    }

    void Add(const char* entry)
    {
        toolkit.Queue().QueueMenu(entry);
        EXPECT_EQ(user.Click("frmLista", "kvcmdAdicionar"), "");
    }

    void PressOnRow(Long row, const char* command)
    {
        EXPECT_EQ(user.Hover("frmLista", "msfgGrade", row), "");
        lines.clear();
        EXPECT_EQ(user.Click("frmLista", command), "");
    }

    void InTheForm(std::function<void()> action) { toolkit.Queue().QueueAction(std::move(action)); }

    template <class Kind> Kind& Control(const char* form, const char* name)
    {
        return dynamic_cast<Kind&>(static_cast<Form&>(*toolkit.FindForm(form)).Control(name));
    }
    KVComboBox& Combo(const char* form, const char* name) { return Control<KVComboBox>(form, name); }

    int Selections() const { return static_cast<int>(Lines("call " + Selecionar + "(").size()); }
};

TEST_F(RecordCommands, TheMenuOpensBelowTheButtonWithTwoEntries)
{
    const auto lista = OpenOnBothKinds();
    toolkit.ClearLog();
    Add("");
    EXPECT_EQ(toolkit.Log().front(), "popup mnuAdicionarAgendamento 300 1710");
    EXPECT_EQ(lista->mnuAdicionarAgendamento.Caption(), "Agendamento simplificado");
    EXPECT_EQ(lista->mnuAdicionarAgendamentoCompleto.Caption(), "Agendamento completo");
    EXPECT_EQ(lista->mnuAdicionarAgendamentoSimplificado.Caption(), "Agendamento Simplificado");
}

TEST_F(RecordCommands, ANewSimplifiedRecordGetsTheRowsOfTheFilters)
{
    const auto lista = OpenOnBothKinds();
    Rows situations, types, employees;
    InTheForm([&] {
        situations = RowsOf(Combo("frmFichaSimplificada", "kvcmbSituacao"));
        types = RowsOf(Combo("frmFichaSimplificada", "kvcmbTiposDeServicos"));
        employees = RowsOf(Combo("frmFichaSimplificada", "kvcmbFuncionarios"));
        user.Click("frmFichaSimplificada", "kvcmdCancelarAlterar");
    });
    Add(Simplificado);
    EXPECT_EQ(situations, (Rows{"Agendado=1", "Atendido=2", "Cancelado=3"}));
    EXPECT_EQ(types, (Rows{"(Todos)=0", "Consulta=1", "Retorno=2", "Banho e tosa=4"}));
    EXPECT_EQ(employees, (Rows{"Ana=7", "Beto=9"}));
    EXPECT_EQ(Reports(), Rows{});
}

TEST_F(RecordCommands, ANewFullRecordGetsThePreSaleToo)
{
    const auto lista = OpenOnBothKinds();
    Rows situations;
    InTheForm([&] {
        situations = RowsOf(Combo("frmFichaCompleta", "kvcmbSituacao"));
        user.Click("frmFichaCompleta", "kvcmdCancelarAlterar");
    });
    Add(Completo);
    EXPECT_EQ(situations, (Rows{"Agendado=1", "Atendido=2", "Cancelado=3", "At. gerado pré-venda=4"}));
}

TEST_F(RecordCommands, TheFiltersChosenOnTheListArePreselected)
{
    for (const auto& [entry, form] :
         {std::pair{Simplificado, "frmFichaSimplificada"}, std::pair{Completo, "frmFichaCompleta"}}) {
        const auto lista = OpenOnBothKinds();
        user.Choose("frmLista", "kvcmbTiposDeServicos", "Banho e tosa");
        user.Choose("frmLista", "kvcmbFuncionarios", "Beto");
        std::string chosen;
        InTheForm([&, form = form] {
            chosen =
                Combo(form, "kvcmbTiposDeServicos").Text() + " " + Combo(form, "kvcmbFuncionarios").Text();
            user.Click(form, "kvcmdCancelarAlterar");
        });
        Add(entry);
        EXPECT_EQ(chosen, "Banho e tosa Beto") << form;
        EXPECT_EQ(lista->kvcmbTiposDeServicos.Text(), "Banho e tosa");
        EXPECT_EQ(lista->kvcmbFuncionarios.Text(), "Beto");
    }
}

TEST_F(RecordCommands, WithoutAFilterAllTypesAndNoEmployeeAreChosen)
{
    const auto lista = OpenOnBothKinds();
    Integer type = -2, employee = -2, situation = -2;
    InTheForm([&] {
        type = Combo("frmFichaSimplificada", "kvcmbTiposDeServicos").ListIndex();
        employee = Combo("frmFichaSimplificada", "kvcmbFuncionarios").ListIndex();
        situation = Combo("frmFichaSimplificada", "kvcmbSituacao").ListIndex();
        user.Click("frmFichaSimplificada", "kvcmdCancelarAlterar");
    });
    Add(Simplificado);
    EXPECT_EQ(type, 0);
    EXPECT_EQ(employee, -1);
    EXPECT_EQ(situation, -1);
}

TEST_F(RecordCommands, CopyingMovesTheFiltersAndReloadsNothing)
{
    const auto lista = OpenOnBothKinds();
    lines.clear();
    InTheForm([&] { user.Click("frmFichaSimplificada", "kvcmdCancelarAlterar"); });
    Add(Simplificado);
    EXPECT_EQ(Selections(), 0);
    EXPECT_EQ(lista->kvcmbSituacao.ListIndex(), 0);
    EXPECT_EQ(lista->kvcmbTiposDeServicos.ListIndex(), 0);
    EXPECT_EQ(lista->kvcmbFuncionarios.ListIndex(), 0);
    // The guard is used up: the next filter works.
    EXPECT_FALSE(lista->IgnorarClick);
}

TEST_F(RecordCommands, ACancelledFormReloadsNothingAndIsUnloaded)
{
    const auto lista = OpenOnBothKinds();
    for (const char* form : {"frmFichaSimplificada", "frmFichaCompleta"}) {
        lines.clear();
        InTheForm([&] { user.Click(form, "kvcmdCancelarAlterar"); });
        Add(std::string(form) == "frmFichaCompleta" ? Completo : Simplificado);
        EXPECT_EQ(Selections(), 0);
        EXPECT_FALSE(Logged(std::string("unload ") + form).empty());
    }
    EXPECT_EQ(Principal.FichaCompletaImplicita, nullptr);
    EXPECT_EQ(Principal.FichaSimplificadaImplicita, nullptr);
}

TEST_F(RecordCommands, ASavedAppointmentReloadsTheListOnItsPage)
{
    const auto lista = OpenOnBothKinds();
    lines.clear();
    InTheForm([&] { user.Click("frmFichaSimplificada", "kvcmdSalvarFecharConfirmar"); });
    Add(Simplificado);
    EXPECT_EQ(Lines("call KOVA_N_Agenda.clsAgenda.Adicionar").size(), 1U);
    EXPECT_EQ(Selections(), 1);
    EXPECT_EQ(lista->PaginaAtual, 1);
}

TEST_F(RecordCommands, TheRowChoosesTheForm)
{
    const auto lista = OpenOnBothKinds();
    for (const char* command : {"kvcmdDetalhar", "kvcmdAlterar", "kvcmdExcluir"}) {
        InTheForm([&] { user.Click("frmFichaSimplificada", "kvcmdCancelarAlterar"); });
        if (std::string(command) == "kvcmdDetalhar")
            InTheForm([&] { user.Click("frmFichaSimplificada", "kvcmdCancelarAlterar"); });
        PressOnRow(1, command);
        InTheForm([&] { user.Click("frmFichaCompleta", "kvcmdCancelarAlterar"); });
        if (std::string(command) == "kvcmdDetalhar")
            InTheForm([&] { user.Click("frmFichaCompleta", "kvcmdCancelarAlterar"); });
        PressOnRow(2, command);
    }
    EXPECT_EQ(Logged("show frmFichaSimplificada modal").size(), 3U);
    EXPECT_EQ(Logged("show frmFichaCompleta modal").size(), 3U);
    EXPECT_EQ(Reports(), Rows{});
}

TEST_F(RecordCommands, TheLimitOfTheSituationsGoesByTheRow)
{
    const auto lista = OpenOnBothKinds();
    std::map<std::string, Integer> counts;
    for (const char* form : {"frmFichaSimplificada", "frmFichaCompleta"}) {
        InTheForm([&] {
            counts[form] = Combo(form, "kvcmbSituacao").ListCount();
            user.Click(form, "kvcmdCancelarAlterar");
        });
        PressOnRow(std::string(form) == "frmFichaCompleta" ? 2 : 1, "kvcmdAlterar");
    }
    EXPECT_EQ(counts["frmFichaSimplificada"], 3);
    EXPECT_EQ(counts["frmFichaCompleta"], 4);
}

TEST_F(RecordCommands, TheGridTakesNoInputWhileTheFormIsOpen)
{
    const auto lista = OpenOnBothKinds();
    bool enabled = true;
    InTheForm([&] {
        enabled = lista->msfgGrade.Enabled();
        user.Click("frmFichaSimplificada", "kvcmdCancelarAlterar");
    });
    PressOnRow(1, "kvcmdExcluir");
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(lista->msfgGrade.Enabled());
}

TEST_F(RecordCommands, AFailureBeforeTheFormLeavesTheGridDisabledAndIsReported)
{
    script.Always(Selecionar, {.records = Table({Appointment(1, {{"CodigoDoCliente", ""}})})});
    const auto lista = Open();
    EXPECT_EQ(user.Hover("frmLista", "msfgGrade", 1), "");
    // Without its rows the employees' filter has no selection that could be handed over.
    lista->kvcmbFuncionarios.Clear();
    EXPECT_EQ(user.Click("frmLista", "kvcmdAlterar"), "");
    EXPECT_FALSE(lista->msfgGrade.Enabled());
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find(", frmLista, kvcmdAlterar_Click, Ponto: 8"), std::string::npos)
        << Reports()[0];
}

TEST_F(RecordCommands, ADetailThatIsClosedReloads)
{
    const auto lista = OpenOnBothKinds();
    InTheForm([&] { user.Click("frmFichaSimplificada", "kvcmdSalvarFecharConfirmar"); });
    PressOnRow(1, "kvcmdDetalhar");
    EXPECT_EQ(Selections(), 1);
}

TEST_F(RecordCommands, ADetailOfARegisteredRowBringsTheSharedFullRecordIntoBeing)
{
    const auto lista = OpenOnBothKinds();
    InTheForm([&] { user.Click("frmFichaSimplificada", "kvcmdSalvarFecharConfirmar"); });
    PressOnRow(1, "kvcmdDetalhar");
    EXPECT_EQ(Principal.FichaCompletaImplicita, nullptr);
    InTheForm([&] { user.Click("frmFichaCompleta", "kvcmdSalvarFecharConfirmar"); });
    PressOnRow(2, "kvcmdDetalhar");
    ASSERT_NE(Principal.FichaCompletaImplicita, nullptr);
    EXPECT_FALSE(Principal.FichaCompletaImplicita->Formulario->Visible());
    EXPECT_TRUE(Principal.FichaCompletaImplicita->Formulario->IsLoaded());
    InTheForm([&] { user.Click("frmFichaCompleta", "kvcmdCancelarAlterar"); });
    PressOnRow(2, "kvcmdAlterar");
    InTheForm([&] { user.Click("frmFichaCompleta", "kvcmdCancelarAlterar"); });
    Add(Completo);
    EXPECT_EQ(Principal.FichaCompletaImplicita, nullptr);
}

TEST_F(RecordCommands, DeletingKeepsThePage)
{
    const auto lista = OpenOnBothKinds();
    lista->PaginaAtual = 1;
    InTheForm([&] { user.Click("frmFichaSimplificada", "kvcmdSalvarFecharConfirmar"); });
    PressOnRow(1, "kvcmdExcluir");
    EXPECT_EQ(Lines("call KOVA_N_Agenda.clsAgenda.Excluir").size(), 1U);
    EXPECT_EQ(Selections(), 1);
    EXPECT_EQ(lista->PaginaAtual, 1);
}

} // namespace

} // namespace kova::agenda
