// The list as AbrirLista builds it.

#include "tests/unit/agenda/module_fixture.hpp"

namespace kova::agenda {

namespace {

const std::string Tipos = "KOVA_N_TipoDeServ.clsTiposDeServ.SelecionarParaComboBox";
const std::string Funcionarios = "KOVA_N_Funcionarios.clsFuncionarios.SelecionarParaComboBox";
const std::string Selecionar = "KOVA_N_Agenda.clsAgenda.Selecionar";

class OpeningTheList : public ModuleTest { };

TEST_F(OpeningTheList, AsksItsComponentsInThisOrder)
{
    ScriptAppointments(2);
    Open();
    const std::vector<std::string> expected{
        "create KOVA_N_TipoDeServ.clsTiposDeServ",
        "call KOVA_N_TipoDeServ.clsTiposDeServ.SelecionarParaComboBox(Double& 0) -> Integer 0",
        "get KOVA_N_TipoDeServ.clsTiposDeServ.ResultadoDaSelecaoEmRecordSet -> Object <recordset>",
        "release KOVA_N_TipoDeServ.clsTiposDeServ",
        "create KOVA_N_Funcionarios.clsFuncionarios",
        "call KOVA_N_Funcionarios.clsFuncionarios.SelecionarParaComboBox(Double& 0) -> Integer 0",
        "get KOVA_N_Funcionarios.clsFuncionarios.ResultadoDaSelecaoEmRecordSet -> Object <recordset>",
        "release KOVA_N_Funcionarios.clsFuncionarios",
        R"(settings read "ExibirPainel" "CheckBoxExibirPainel" -> "Nenhum valor lido")",
        R"(settings write "ExibirPainel" "CheckBoxExibirPainel" "1")",
        "create KOVA_N_Agenda.clsAgenda",
        R"(call KOVA_N_Agenda.clsAgenda.Selecionar(Long 1, Integer& 19, Long 0, Text "", Text "20/11/2026", )"
        "Long 0, Long 0, Double 0) -> Integer 0",
        "get KOVA_N_Agenda.clsAgenda.ResultadoDaSelecaoEmRecordSet -> Object <recordset>",
        "get KOVA_N_Agenda.clsAgenda.ResultadoDaSelecaoEmRecordSet -> Object <recordset>",
        "set recordset.AbsolutePage 1",
        "call KOVA_N_Agenda.clsAgenda.PaginarResultadoDaSelecaoEmRecordset(Integer& 19, Object& <nothing>) "
        "-> Empty",
        "get KOVA_N_Agenda.clsAgenda.ResultadoDaSelecaoEmRecordSet -> Object <recordset>",
    };
    EXPECT_EQ(lines, expected);
    EXPECT_EQ(script.LiveObjects(), 1) << "only the list's own business object outlives its procedure";
}

TEST_F(OpeningTheList, FillsTheThreeFiltersAndStandsOnTheirFirstRows)
{
    const auto lista = Open();
    const auto rows = [](const KVComboBox& combo) {
        std::vector<std::pair<Text, Long>> found;
        for (Integer row = 0; row < combo.ListCount(); ++row)
            found.emplace_back(combo.List(row), combo.ItemData(row));
        return found;
    };
    using Rows = std::vector<std::pair<Text, Long>>;
    EXPECT_EQ(rows(lista->kvcmbSituacao),
              (Rows{{"Todas as situações", 0},
                    {"Agendado", 1},
                    {"Atendido", 2},
                    {"Cancelado", 3},
                    {"At. gerado pré-venda", 4}}));
    EXPECT_EQ(rows(lista->kvcmbTiposDeServicos),
              (Rows{{"(Tipos de Serviços)", 0}, {"Consulta", 1}, {"Retorno", 2}, {"Banho e tosa", 4}}));
    EXPECT_EQ(rows(lista->kvcmbFuncionarios), (Rows{{"(Funcionários)", 0}, {"Ana", 7}, {"Beto", 9}}));
    EXPECT_EQ(lista->kvcmbSituacao.ListIndex(), 0);
    EXPECT_EQ(lista->kvcmbTiposDeServicos.ListIndex(), 0);
    EXPECT_EQ(lista->kvcmbFuncionarios.ListIndex(), 0);
    EXPECT_EQ(lista->kvdtpDataDeAgendamento.Text(), "20/11/2026");
    EXPECT_EQ(Principal.DataDaAgenda, "20/11/2026");
    EXPECT_EQ(Principal.HandleDaJanelaPrincipal, 4711);
    EXPECT_FALSE(lista->IgnorarClick);
    EXPECT_EQ(Lines("call " + Selecionar).size(), 1U) << "the guarded writes reload nothing";
}

TEST_F(OpeningTheList, GivesTheNineIconButtonsTheirToolTips)
{
    const auto lista = Open();
    EXPECT_EQ(lista->kvcmdMarcarAgendamentoComoAgendado.ToolTipText(), "Marcar agendamento como agendado");
    EXPECT_EQ(lista->kvcmdMarcarAgendamentoComoAtendido.ToolTipText(), "Marcar agendamento como atendido");
    EXPECT_EQ(lista->kvcmdMarcarAgendamentoComoCancelado.ToolTipText(), "Marcar agendamento como cancelado");
    EXPECT_EQ(lista->kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda.ToolTipText(),
              "Marcar agendamento como atendido e gerado pré-venda");
    EXPECT_EQ(lista->kvcmdDetalhar.ToolTipText(), "Detalhar");
    EXPECT_EQ(lista->kvcmdAlterar.ToolTipText(), "Alterar");
    EXPECT_EQ(lista->kvcmdExcluir.ToolTipText(), "Excluir");
    EXPECT_EQ(lista->kvcmdImprimirFicha.ToolTipText(), "Imprimir fichas ou etiqueta");
    EXPECT_EQ(lista->kvcmdImprimirLista.ToolTipText(), "Imprimir lista");
}

TEST_F(OpeningTheList, ShowsTheFirstPageAndItsNumbers)
{
    ScriptAppointments(42);
    const auto lista = Open();
    EXPECT_TRUE(lista->Formulario->Visible());
    EXPECT_EQ(lista->RegistrosPorPagina, 19);
    EXPECT_EQ(lista->PaginaAtual, 1);
    EXPECT_EQ(lista->msfgGrade.Rows(), 20);
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.FirstRecord(), 1);
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.LastRecord(), 19);
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.RecordCount(), 42);
    EXPECT_EQ(lista->kvnbBarraDeNavegacao.PageSize(), 19);
    EXPECT_TRUE(lista->msfgGrade.Visible());
    EXPECT_TRUE(lista->kvnbBarraDeNavegacao.Visible());
    EXPECT_FALSE(lista->lblMensagemDeResultado.Visible());
    EXPECT_FALSE(lista->picMensagem.Visible());
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpeningTheList, WorksWithoutTheApplicationsName)
{
    application.clear();
    script.Always(Tipos, {.records = {{"Nome", "Numero"}, {}}});
    Open();
    ASSERT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(Boxes()[0].find("box information \"\" "), 0U) << Boxes()[0];
}

TEST_F(OpeningTheList, WorksWithoutAUser)
{
    withUser = false;
    ScriptAppointments(1);
    const auto lista = Open();
    EXPECT_TRUE(lista->Formulario->Visible());
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpeningTheList, SaysThatThereIsNoServiceTypeAndStaysHidden)
{
    script.Always(Tipos, {.records = {{"Nome", "Numero"}, {}}});
    const auto lista = Open();
    const std::vector<std::string> expected{
        R"(box information "Kova" "Nenhum tipo de serviço cadastrado.\r\nÉ necessário ter no mínimo um tipo de )"
        R"(serviço cadastrado para incluir um agendamento." -> ok)"};
    EXPECT_EQ(Boxes(), expected);
    EXPECT_FALSE(lista->Formulario->Visible());
    EXPECT_EQ(Lines("create KOVA_N_Funcionarios").size(), 0U);
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover(Long& 4711)").size(), 1U);
    EXPECT_EQ(script.LiveObjects(), 0);
}

TEST_F(OpeningTheList, SaysThatThereIsNoEmployeeAndStaysHidden)
{
    script.Always(Funcionarios, {.records = {{"Apelido", "Codigo"}, {}}});
    const auto lista = Open();
    const std::vector<std::string> expected{
        R"(box information "Kova" "Nenhum funcionário cadastrado.\r\nÉ necessário ter no mínimo um funcionário )"
        R"(cadastrado para incluir um agendamento." -> ok)"};
    EXPECT_EQ(Boxes(), expected);
    EXPECT_FALSE(lista->Formulario->Visible());
    EXPECT_EQ(Lines("create KOVA_N_Agenda").size(), 0U);
}

TEST_F(OpeningTheList, PassesOnWhatTheServiceTypesSayOfTheirFailure)
{
    script.Answer(Tipos,
                  {.result = Long{1},
                   .members = {{"NumeroDoErro", Long{7001}},
                               {"DescricaoDoErro", "Banco fora do ar"},
                               {"LocalDoErro", "Servidor, Tipos, Ponto: 2"}}});
    const auto lista = Open();
    const std::vector<std::string> expected{
        R"(call KOVA_A_MsgErro.clsMensagem.Exibir(Long& 7001, Text& "Banco fora do ar", )"
        R"(Text& "Servidor, Tipos, Ponto: 2", Text& "Kova") -> Integer 0)"};
    EXPECT_EQ(Reports(), expected);
    EXPECT_EQ(Lines("get KOVA_N_TipoDeServ").size(), 3U);
    EXPECT_FALSE(lista->Formulario->Visible());
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover").size(), 1U);
}

TEST_F(OpeningTheList, StopsAtAnEmptyFilterAlsoWhereTheDimmingCannotBeTakenAway)
{
    script.Always(Tipos, {.records = {{"Nome", "Numero"}, {}}});
    script.FailCreate("KOVA_A_EfeitosDeTela.clsFundoEscuro", Failure(429, "sem efeitos"));
    Open();
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("frmFichaCompleta, PreencherComboboxTiposDeServicos, Ponto: 4"),
              std::string::npos)
        << Reports()[0];
    EXPECT_TRUE(Lines("create KOVA_N_Funcionarios").empty());
}

TEST_F(OpeningTheList, GoesOnAfterAFailedFilterWhereTheDimmingCannotBeTakenAway)
{
    script.Answer(Tipos,
                  {.result = Long{1},
                   .members = {{"NumeroDoErro", Long{9}}, {"DescricaoDoErro", "d"}, {"LocalDoErro", "l"}}});
    script.FailCreate("KOVA_A_EfeitosDeTela.clsFundoEscuro", Failure(429, "sem efeitos"));
    Open();
    ASSERT_EQ(Reports().size(), 3U);
    EXPECT_NE(Reports()[1].find("frmFichaCompleta, PreencherComboboxTiposDeServicos, Ponto: 3"),
              std::string::npos)
        << Reports()[1];
    EXPECT_NE(Reports()[2].find("frmLista, MontarExibirFormulario, Ponto: 4"), std::string::npos)
        << "the opening went on: " << Reports()[2];
}

TEST_F(OpeningTheList, ReportsAMissingComponentUnderTheTagOfTheFill)
{
    script.FailCreate("KOVA_N_TipoDeServ.clsTiposDeServ",
                      Failure(429, "O componente não pode criar o objeto"));
    const auto lista = Open();
    ASSERT_EQ(Reports().size(), 2U);
    EXPECT_EQ(
        Reports()[0],
        R"(call KOVA_A_MsgErro.clsMensagem.Exibir(Long& 429, Text& "O componente não pode criar o objeto", )"
        R"(Text& "KOVA_A_Agenda, frmFichaCompleta, PreencherComboboxTiposDeServicos, Ponto: 1", )"
        R"(Text& "Kova") -> Integer 0)");
    // The trapped failure left the flag at done: the caller went on and found no row to stand on.
    EXPECT_NE(Reports()[1].find("Long& 380"), std::string::npos) << Reports()[1];
    EXPECT_NE(Reports()[1].find(", frmLista, MontarExibirFormulario, Ponto: 4"), std::string::npos);
    EXPECT_FALSE(lista->Formulario->Visible());
}

TEST_F(OpeningTheList, ShowsAnEmptyFormWhereItsBusinessObjectCannotBeCreated)
{
    script.FailCreate("KOVA_N_Agenda.clsAgenda", Failure(429, "sem agenda"));
    const auto lista = Open();
    EXPECT_TRUE(lista->Formulario->Visible());
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmLista, MontarExibirFormulario, Ponto: 8"),
              std::string::npos)
        << Reports()[0];
}

TEST_F(OpeningTheList, StopsWhereTheFirstSelectionFails)
{
    script.Answer(Selecionar,
                  {.result = Long{1},
                   .members = {{"NumeroDoErro", Long{9}}, {"DescricaoDoErro", "d"}, {"LocalDoErro", "l"}}});
    const auto lista = Open();
    EXPECT_TRUE(lista->Formulario->Visible());
    EXPECT_EQ(lista->PaginaAtual, 0);
    EXPECT_FALSE(lista->msfgGrade.Visible());
    EXPECT_EQ(Reports().size(), 1U);
    EXPECT_TRUE(Lines("call KOVA_N_Agenda.clsAgenda.Paginar").empty());
}

TEST_F(OpeningTheList, EndsSilentlyWhereTheErrorScreenFailsToo)
{
    script.FailCreate("KOVA_N_Agenda.clsAgenda", Failure(429, "sem agenda"));
    script.FailCreate("KOVA_A_MsgErro.clsMensagem", Failure(429, "sem tela de erro"));
    const auto lista = Open();
    EXPECT_TRUE(lista->Formulario->Visible());
    EXPECT_TRUE(Reports().empty());
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(OpeningTheList, ReportsAContainerThatDoesNotExist)
{
    container = 999999;
    Open();
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("Long& 5"), std::string::npos) << Reports()[0];
    EXPECT_NE(Reports()[0].find("frmLista, MontarExibirFormulario, Ponto: 1"), std::string::npos);
}

TEST_F(OpeningTheList, SaysThatADayHasNoAppointments)
{
    const auto lista = Open();
    EXPECT_EQ(lista->lblMensagemDeResultado.Caption(), "Nenhum agendamento encontrado.");
    EXPECT_TRUE(lista->lblMensagemDeResultado.Visible());
    EXPECT_FALSE(lista->msfgGrade.Visible());
    EXPECT_FALSE(lista->kvnbBarraDeNavegacao.Visible());
    EXPECT_FALSE(lista->lblExibirPainel.Visible());
    EXPECT_FALSE(lista->chkExibirPainel.Visible());
    EXPECT_EQ(lista->chkExibirPainel.Value(), 1);
    EXPECT_FALSE(lista->picPainel.Visible()) << "whatever its check box says";
    for (const Widget* filtro : std::initializer_list<const Widget*>{
             &lista->kvcmdAdicionar, &lista->kvfndPesquisar, &lista->kvcmbTiposDeServicos,
             &lista->kvcmbFuncionarios, &lista->kvcmbSituacao, &lista->kvcmdIrParaDiaAnterior,
             &lista->kvdtpDataDeAgendamento, &lista->kvcmdIrParaDiaPosterior, &lista->kvcmdImprimirLista}) {
        EXPECT_TRUE(filtro->Visible()) << filtro->Name();
        EXPECT_TRUE(filtro->Enabled()) << filtro->Name();
    }
}

TEST_F(OpeningTheList, ShowsThePanelAtTheFirstStartAndRemembersIt)
{
    ScriptAppointments(3);
    const auto lista = Open();
    EXPECT_EQ(profile.ValueOf("ExibirPainel", "CheckBoxExibirPainel"), "1");
    EXPECT_EQ(profile.LastPath(), "/configuracao/KOVA_A_Agenda.ini");
    EXPECT_EQ(lista->LinhasDoPainel, 2);
    EXPECT_TRUE(lista->picPainel.Visible());
    EXPECT_FALSE(lista->IgnorarClickDoPainel);
}

TEST_F(OpeningTheList, HidesThePanelForEverySettingThatIsNotOne)
{
    for (const char* setting : {"0", "", "não", "abc1"}) {
        profile.Put("ExibirPainel", "CheckBoxExibirPainel", setting);
        ScriptAppointments(3);
        const auto lista = Open();
        EXPECT_EQ(lista->chkExibirPainel.Value(), 0) << setting;
        EXPECT_EQ(lista->LinhasDoPainel, 0) << setting;
        EXPECT_FALSE(lista->picPainel.Visible()) << setting;
        EXPECT_EQ(lista->RegistrosPorPagina, 21) << setting;
    }
    EXPECT_EQ(Lines("settings write").size(), 0U);
}

TEST_F(OpeningTheList, TakesTheSentinelInTheFileForAMissingSetting)
{
    profile.Put("ExibirPainel", "CheckBoxExibirPainel", "Nenhum valor lido");
    const auto lista = Open();
    EXPECT_EQ(lista->chkExibirPainel.Value(), 1);
    EXPECT_EQ(Lines("settings write").size(), 1U);
}

TEST_F(OpeningTheList, LeavesTheFormerListOpenWhenTheShellOpensAnother)
{
    const auto first = Open();
    const Long otherContainer = toolkit.CreateContainer(20000, 12000);
    container = otherContainer;
    const auto second = Open();
    EXPECT_NE(first, second);
    EXPECT_TRUE(first->Formulario->Visible());
    EXPECT_TRUE(second->Formulario->Visible());
    EXPECT_EQ(Principal.FormularioDaLista, second);
}

TEST_F(OpeningTheList, ForgetsAListThatItsShellHasClosed)
{
    std::weak_ptr<frmLista> lista = Open();
    EXPECT_EQ(Principal.ListasAbertas.size(), 1U);
    lista.lock()->Formulario->Unload();
    EXPECT_TRUE(Principal.ListasAbertas.empty());
    EXPECT_TRUE(lista.expired());
    EXPECT_EQ(script.LiveObjects(), 0);
}

TEST_F(OpeningTheList, EndsWithItsContainer)
{
    std::weak_ptr<frmLista> lista = Open();
    toolkit.ClearLog();
    toolkit.DestroyContainer(container);
    EXPECT_EQ(Logged("unload"), std::vector<std::string>{"unload frmLista"});
    EXPECT_TRUE(Principal.ListasAbertas.empty());
    EXPECT_EQ(Principal.FormularioDaLista, nullptr);
    EXPECT_TRUE(lista.expired());
    EXPECT_EQ(script.LiveObjects(), 0);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpeningTheList, TakesAUserThatHasBeenDropped)
{
    clsAgenda agenda;
    agenda.Set("DadosDoUsuario", std::make_shared<scenario::NamedObject>("<user>"));
    agenda.Set("DadosDoUsuario", ObjectRef());
    EXPECT_EQ(Principal.DadosDoUsuario, nullptr);
    agenda.Set("DadosDoUsuario", std::make_shared<scenario::NamedObject>("<user>"));
    agenda.Set("DadosDoUsuario", Value());
    EXPECT_EQ(Principal.DadosDoUsuario, nullptr);
}

TEST_F(OpeningTheList, OffersOneMethodAndTwoWriteOnlyProperties)
{
    clsAgenda agenda;
    const auto numberOf = [](auto&& act) {
        try {
            act();
        } catch (const Failure& failure) {
            return failure.Number();
        }
        return std::int32_t{0};
    };
    EXPECT_EQ(numberOf([&] { agenda.Get("NomeDaAplicacao"); }), 438);
    EXPECT_EQ(numberOf([&] { agenda.Get("DadosDoUsuario"); }), 438);
    EXPECT_EQ(numberOf([&] { agenda.Set("abrirlista", Long{1}); }), 438);
    EXPECT_EQ(numberOf([&] { agenda.Call("Fechar"); }), 438);
    EXPECT_EQ(numberOf([&] { agenda.Call("AbrirLista", {Long{1}}); }), 450);
    EXPECT_EQ(numberOf([&] { agenda.Call("AbrirLista", {"um", Long{1}}); }), 13);
    EXPECT_EQ(numberOf([&] { agenda.Set("DadosDoUsuario", "texto"); }), 13);
}

} // namespace

} // namespace kova::agenda
