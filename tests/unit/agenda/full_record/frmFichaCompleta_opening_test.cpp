// The record form opens: filled for its operation, over the dimmed shell.

#include "tests/unit/agenda/full_record/frmFichaCompleta_fixture.hpp"

namespace kova::agenda {

namespace {

class FichaCompletaOpening : public FichaCompletaTest { };

TEST_F(FichaCompletaOpening, AddsOnTheListsDateWithoutANumber)
{
    Prepare();
    Principal.DataDaAgenda = "23/11/2026";
    ficha->Estado.NumeroDeLancamento = 9;
    ficha->DomingoOuFeriado = true;
    Show(operacao::Adicionar, [this] {
        EXPECT_EQ(ficha->Estado.TipoDeOperacao, operacao::Adicionar);
        EXPECT_EQ(ficha->Estado.NumeroDeLancamento, 0);
        EXPECT_FALSE(ficha->DomingoOuFeriado);
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        EXPECT_EQ(ficha->kvdtpDataInicial.Text(), "23/11/2026");
        EXPECT_EQ(ficha->kvtimHoraInicial.Text(), "__:__");
        EXPECT_EQ(CustomerTexts(), Strings(5));
        EXPECT_EQ(AnimalTexts(), Strings(5));
        EXPECT_TRUE(ficha->txtPesquisarPor.Visible());
        EXPECT_TRUE(ficha->optAgendarPorCliente.Value());
        EXPECT_FALSE(ficha->kvfNomeDoAnimal.Visible());
    });
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
    EXPECT_TRUE(Lines("create KOVA_N_ClientAnim").empty());
}

TEST_F(FichaCompletaOpening, RunsTheTypesLogicOnItsFirstRow)
{
    Prepare();
    ficha->kvtxtObservacaoDoServico.Text("resto");
    ficha->kvcmbFuncionarios.Enabled(false);
    Show(operacao::Adicionar, [this] { EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), ""); });
}

TEST_F(FichaCompletaOpening, LeavesATypeThatTheOpenerChoseAlone)
{
    Prepare();
    ficha->kvcmbTiposDeServicos.ListIndex(3);
    ficha->kvtxtObservacaoDoServico.Text("resto");
    Show(operacao::Adicionar, [this] {
        EXPECT_EQ(ficha->kvcmbTiposDeServicos.Text(), "Banho e tosa");
        EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), "resto");
    });
}

TEST_F(FichaCompletaOpening, ReadsTheListsCurrentRow)
{
    Prepare({{"NumeroDoTipoDeServico", Long{4}},
             {"NomeDoServico", "Banho"},
             {"TempoDeExecucao", "01:00"},
             {"Observacao", "com perfume"},
             {"Situacao", Long{2}}});
    for (const Integer mode : {operacao::Detalhar, operacao::Alterar, operacao::Excluir}) {
        MakeForm();
        Show(mode, [this] {
            EXPECT_EQ(ficha->Estado.NumeroDeLancamento, 41);
            EXPECT_EQ(CustomerTexts(),
                      (Strings{"12", "Zé", "José Antônio da Silva", "(EnderecoCompletoComCEP)",
                               "Celular: 00000-0000"}));
            EXPECT_EQ(AnimalTexts(), (Strings{"Rex", "Macho", "Cão", "Poodle", "Branco"}));
            EXPECT_EQ(ficha->kvcmbTiposDeServicos.Text(), "Banho e tosa");
            EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "8");
            EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Banho");
            EXPECT_EQ(ficha->kvdtpDataInicial.Text() + " " + ficha->kvtimHoraInicial.Text(),
                      "20/11/2026 08:00");
            EXPECT_EQ(ficha->kvdtpDataFinal.Text() + " " + ficha->kvtimHoraFinal.Text(), "20/11/2026 09:00");
            EXPECT_EQ(ficha->kvcmbFuncionarios.Text(), "Ana");
            EXPECT_EQ(ficha->kvtxtTempoDoServico.Text(), "01:00");
            EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), "com perfume");
            EXPECT_EQ(ficha->kvcmbBuscar.ListIndex(), 0);
            EXPECT_EQ(ficha->kvcmbLevar.ListIndex(), 1);
            EXPECT_EQ(ficha->kvcmbSituacao.Text(), "Atendido");
            EXPECT_FALSE(ficha->txtPesquisarPor.Visible());
            EXPECT_FALSE(ficha->optAgendarPorCliente.Visible());
            EXPECT_FALSE(ficha->optAgendarPorAnimal.Visible());
            EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        });
        EXPECT_TRUE(Reports().empty());
    }
}

TEST_F(FichaCompletaOpening, AsksForTheCustomersAnimalsButOnDeleting)
{
    Prepare();
    const std::string list = "call KOVA_N_ClientAnim.clsAnimais.SelecionarParaComboBoxFiltradoPorCliente("
                             "Double& 12, Integer 1) -> Integer 0";
    const std::string one =
        "call KOVA_N_ClientAnim.clsAnimais.Selecionar(Long 2, Integer 0, Long 1, Long 3, Integer 1, "
        "Double 12) -> Integer 0";
    Show(operacao::Detalhar);
    EXPECT_EQ(Lines("call KOVA_N_ClientAnim"), (Strings{list, one}));

    MakeForm();
    Show(operacao::Excluir, [this] {
        ASSERT_EQ(ficha->kvcmbAnimal.ListCount(), 1);
        EXPECT_EQ(ficha->kvcmbAnimal.ItemData(0), 3);
    });
    EXPECT_EQ(Lines("call KOVA_N_ClientAnim"), Strings{one});
}

TEST_F(FichaCompletaOpening, ShowsNoWaitPlateBeforeItIsOnTheScreen)
{
    Prepare();
    Show(operacao::Alterar);
    EXPECT_TRUE(Logged("pause").empty());
}

TEST_F(FichaCompletaOpening, LeavesACombosSelectionWhereNoRowHasTheNumber)
{
    Prepare({{"NumeroDoTipoDeServico", Long{77}},
             {"CodigoDoFuncionario", Long{77}},
             {"CodigoDoAnimal", Long{77}},
             {"Situacao", Long{77}},
             {"Observacao", "lida assim mesmo"}});
    ficha->kvcmbFuncionarios.ListIndex(1);
    Show(operacao::Detalhar, [this] {
        EXPECT_EQ(ficha->kvcmbTiposDeServicos.ListIndex(), 0);
        EXPECT_EQ(ficha->kvcmbFuncionarios.ListIndex(), 1);
        EXPECT_EQ(ficha->kvcmbAnimal.ListIndex(), -1);
        EXPECT_EQ(ficha->kvcmbSituacao.ListIndex(), -1);
        EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), "lida assim mesmo");
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
    });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(FichaCompletaOpening, GoesOnReadingWhereTheCustomerHasNoAnimalLeft)
{
    Prepare();
    ScriptAnimals({});
    Answer();
    Show(operacao::Alterar, [this] {
        EXPECT_EQ(ficha->kvcmbAnimal.ListCount(), 0);
        EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "8");
    });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(FichaCompletaOpening, ReportsACellThatIsNoNumberAndDoesNotShow)
{
    Prepare({{"NumeroDoTipoDeServico", "tosa"}});
    ficha->MontarExibirFormulario(operacao::Detalhar);
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("(Long& 13, "), std::string::npos);
    EXPECT_NE(
        Reports()[0].find(R"(Text& "KOVA_A_Agenda, frmFichaCompleta, MontarExibirFormulario, Ponto: 6")"),
        std::string::npos);
    EXPECT_TRUE(Logged("show").empty());
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
}

TEST_F(FichaCompletaOpening, ReportsWhereThereIsNoListToReadFrom)
{
    MakeForm();
    ficha->MontarExibirFormulario(operacao::Detalhar);
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("(Long& 91, "), std::string::npos);
}

TEST_F(FichaCompletaOpening, DimsTheShellForAsLongAsItIsOpen)
{
    Prepare();
    Show(operacao::Adicionar, [this] {
        EXPECT_EQ(
            Lines("call KOVA_A_EfeitosDeTela"),
            Strings{"call KOVA_A_EfeitosDeTela.clsFundoEscuro.Aplicar(Long& 4711, Integer& 0) -> Integer 0"});
    });
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela").back(),
              "call KOVA_A_EfeitosDeTela.clsFundoEscuro.Remover(Long& 4711) -> Integer 0");
    EXPECT_EQ(toolkit.Log(),
              (Strings{"show frmFichaCompleta modal", "hide frmFichaCompleta", "repaint frmLista"}));
}

TEST_F(FichaCompletaOpening, BecomesAnAlterationWithoutASecondShow)
{
    Prepare();
    Show(operacao::Detalhar, [this] {
        lines.clear();
        toolkit.ClearLog();
        EXPECT_EQ(user.Click(Form, "kvcmdCancelarAlterar"), "");
        EXPECT_EQ(ficha->Estado.TipoDeOperacao, operacao::Alterar);
        EXPECT_TRUE(ficha->Formulario->Visible());
        EXPECT_TRUE(Lines("call KOVA_A_EfeitosDeTela").empty());
        EXPECT_TRUE(Logged("show").empty());
        EXPECT_EQ(ficha->kvcmbReagendar.ListCount(), 2) << "filled once";
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "(NomeDoServico)") << "the type's click was swallowed";
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
    });
    EXPECT_EQ(Lines("call KOVA_A_EfeitosDeTela").size(), 1U) << "taken away by the first pass";
}

TEST_F(FichaCompletaOpening, GetsAFrameOnTheSystemOfSquareCornersOnly)
{
    script.System("WINDOWS 8");
    Prepare();
    const auto& frame = ficha->Formulario->Control("lshpObj");
    EXPECT_TRUE(frame.Visible());
    EXPECT_EQ(frame.Width(), ficha->Formulario->ScaleWidth());
    EXPECT_EQ(frame.Height(), ficha->Formulario->ScaleHeight());
    script.System("Windows 8.1");
    MakeForm();
    EXPECT_THROW(ficha->Formulario->Control("lshpObj"), Failure);
}

TEST_F(FichaCompletaOpening, ReportsAVersionComponentThatCannotBeCreated)
{
    script.FailCreate("KOVA_N_SO.clsObterVersaoDoSO", Failure(429, "Sem componente"));
    ficha = frmFichaCompleta::Criar();
    ficha->Formulario->Load();
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmFichaCompleta, Form_Load, Ponto: 1"), std::string::npos);
}

TEST_F(FichaCompletaOpening, EndsUnfinishedWhenItsWindowIsClosed)
{
    Prepare();
    Show(operacao::Detalhar, [this] { EXPECT_EQ(user.CloseForm(Form), ""); });
    EXPECT_FALSE(ficha->Estado.OperacaoConcluida);
    EXPECT_FALSE(ficha->Formulario->IsLoaded());
}

} // namespace

} // namespace kova::agenda
