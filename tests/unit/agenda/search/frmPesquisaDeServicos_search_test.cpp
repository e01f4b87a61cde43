// Searching and choosing inside the picker of services.

#include "agenda/search/frmPesquisaDeServicos.hpp"
#include "tests/unit/agenda/search/search_fixture.hpp"
#include "toolkits/common/boxes/find_box.hpp"

namespace kova::agenda {

namespace {

using scenario::RecordTable;
using toolkit::FormKey;

const std::string Selecionar = "KOVA_N_Servicos.clsServicos.Selecionar";
const std::string Tipos = "KOVA_N_TipoDeServ.clsTiposDeServ.SelecionarParaComboBox";

class PickingAService : public SearchTest {
protected:
    PickingAService()
    {
        pesquisa->ConfigurarGrade();
        pesquisa->kvcmbTiposDeServicos.AddItem("(Todos)");
        pesquisa->kvcmbTiposDeServicos.AddItem("Banho e tosa");
        pesquisa->kvcmbTiposDeServicos.ItemData(1, 4);
        Principal.IgnorarClickDoTipoNaPesquisa = true;
        pesquisa->kvcmbTiposDeServicos.ListIndex(1);
    }

    static RecordTable Services(int count)
    {
        RecordTable table{{"Codigo", "Nome", "Descricao", "ValorDeVenda", "Custo", "NumeroDoTipoDeServico",
                           "TempoDeExecucao"},
                          {}};
        for (int number = 1; number <= count; ++number)
            table.rows.push_back({Double(number), "Banho", "", Double{1}, Double{1}, Long{4}, "01:00"});
        return table;
    }
    void Fill(int count)
    {
        auto records = Records(Services(count));
        pesquisa->PreencherGrade(records);
    }
    void Search(const std::string& text)
    {
        EXPECT_EQ(user.Type("frmPesquisaDeServicos", "kvfndCodigoOuNome", text), "");
        EXPECT_EQ(user.Press("frmPesquisaDeServicos", "kvfndCodigoOuNome"), "");
    }
    std::vector<std::string> Calls() const { return Lines("call " + Selecionar); }

    std::shared_ptr<frmPesquisaDeServicos> pesquisa = frmPesquisaDeServicos::Criar();
    MSFlexGrid& grade = pesquisa->msfgGrade;
    KVFind& caixa = pesquisa->kvfndCodigoOuNome;
};

TEST_F(PickingAService, ChoosesTheRowThatIsClickedAndHides)
{
    Fill(3);
    Use(*pesquisa, [&] {
        EXPECT_EQ(user.Select("frmPesquisaDeServicos", "msfgGrade", 2), "");
        EXPECT_FALSE(pesquisa->Formulario->Visible());
    });
    EXPECT_TRUE(pesquisa->RegistroSelecionado);
    EXPECT_EQ(grade.TextMatrix(grade.RowSel(), 1), "2");
}

TEST_F(PickingAService, ChoosesNothingByAClickOnTheHeader)
{
    Fill(3);
    Use(*pesquisa, [&] {
        EXPECT_EQ(user.ClickAt("frmPesquisaDeServicos", "msfgGrade", 600, 100), "");
        EXPECT_TRUE(pesquisa->Formulario->Visible());
    });
    EXPECT_FALSE(pesquisa->RegistroSelecionado);
}

TEST_F(PickingAService, ChoosesByArrowKeysAndEnter)
{
    Fill(3);
    Use(*pesquisa, [&] {
        EXPECT_EQ(user.GridKey("frmPesquisaDeServicos", "msfgGrade", toolkit::GridKey::Down), "");
        EXPECT_TRUE(ModelOf(grade).IsHighlighted(2, 1));
        EXPECT_TRUE(ModelOf(grade).IsHighlighted(2, 7)) << "the whole row";
        EXPECT_EQ(user.PressKey("frmPesquisaDeServicos", FormKey::Enter), "")
            << "the grid has the focus from the start";
    });
    EXPECT_TRUE(pesquisa->RegistroSelecionado);
    EXPECT_EQ(grade.RowSel(), 2);
}

TEST_F(PickingAService, StartsInTheGridAndGoesRoundAsTheEyeReads)
{
    Fill(3);
    Use(*pesquisa, [&] {
        const auto focused = [&] {
            return dynamic_cast<toolkit::FormModel&>(*pesquisa->Formulario).Focused()->Design().name;
        };
        EXPECT_EQ(focused(), "msfgGrade");
        for (const char* next : {"kvcmdFechar", "kvcmbTiposDeServicos", "kvfndCodigoOuNome", "msfgGrade"}) {
            user.PressKey("frmPesquisaDeServicos", FormKey::Tab);
            EXPECT_EQ(focused(), next);
        }
    });
}

TEST_F(PickingAService, ClosesWithoutAChoiceByItsButtonAndByEscape)
{
    Fill(3);
    Use(*pesquisa, [&] { EXPECT_EQ(user.Click("frmPesquisaDeServicos", "kvcmdFechar"), ""); });
    EXPECT_FALSE(pesquisa->RegistroSelecionado);
    EXPECT_FALSE(pesquisa->Formulario->Visible());
    Use(*pesquisa, [&] { EXPECT_EQ(user.PressKey("frmPesquisaDeServicos", FormKey::Escape), ""); });
    EXPECT_FALSE(pesquisa->RegistroSelecionado);
    EXPECT_EQ(toolkit.Queue().Unexpected().size(), 0U);
}

TEST_F(PickingAService, ForgetsAFormerChoiceWhenItIsShownAgainAndWhenItIsUnloaded)
{
    Fill(3);
    Use(*pesquisa, [&] { user.Select("frmPesquisaDeServicos", "msfgGrade", 1); });
    ASSERT_TRUE(pesquisa->RegistroSelecionado);
    Use(*pesquisa, [&] { EXPECT_FALSE(pesquisa->RegistroSelecionado); });
    pesquisa->RegistroSelecionado = true;
    pesquisa->Formulario->Unload();
    EXPECT_FALSE(pesquisa->RegistroSelecionado);
}

TEST_F(PickingAService, AsksForTheTextInsideTheChosenType)
{
    script.Always(Selecionar, {.records = Services(3)});
    Use(*pesquisa, [&] {
        Search("banho");
        EXPECT_EQ(grade.Rows(), 4);
        EXPECT_TRUE(grade.Visible());
        EXPECT_FALSE(pesquisa->picMensagem.Visible());
        EXPECT_TRUE(pesquisa->Formulario->Enabled());
    });
    EXPECT_EQ(
        Calls(),
        (std::vector<std::string>{"call " + Selecionar
                                  + R"((Long 2, Integer 0, Long 1, Text "banho", Long 4) -> Integer 0)"}));
    EXPECT_TRUE(Lines("set KOVA_N_Servicos").empty()) << "the user is not told to this class";
    EXPECT_EQ(Logged("pause 1").size(), 1U);
    EXPECT_EQ(Logged("focus frmPesquisaDeServicos.kvfndCodigoOuNome").size(), 1U);
    EXPECT_EQ(script.LiveObjects(), 0);
}

TEST_F(PickingAService, SearchesAllTypesFromTheFirstRow)
{
    Principal.IgnorarClickDoTipoNaPesquisa = true;
    pesquisa->kvcmbTiposDeServicos.ListIndex(0);
    Use(*pesquisa, [&] { Search("x"); });
    ASSERT_EQ(Calls().size(), 1U);
    EXPECT_NE(Calls()[0].find(R"(Text "x", Long 0))"), std::string::npos) << Calls()[0];
}

TEST_F(PickingAService, TakesASearchOfAnyLength)
{
    Use(*pesquisa, [&] { user.Press("frmPesquisaDeServicos", "kvfndCodigoOuNome"); });
    ASSERT_EQ(Calls().size(), 1U);
    EXPECT_NE(Calls()[0].find(R"(Text "", Long 4)"), std::string::npos);
}

TEST_F(PickingAService, ChoosesASingleHitByItself)
{
    script.Always(Selecionar, {.records = Services(1)});
    Use(*pesquisa, [&] {
        Search("8");
        EXPECT_FALSE(pesquisa->Formulario->Visible());
    });
    EXPECT_TRUE(pesquisa->RegistroSelecionado);
    EXPECT_EQ(grade.TextMatrix(grade.RowSel(), 1), "1");
    EXPECT_TRUE(pesquisa->picMensagem.Visible())
        << "the plate goes after the choice, which has hidden the form";
    EXPECT_TRUE(Logged("focus").empty());
}

TEST_F(PickingAService, KeepsItsPlateUntilTheRowsAreThere)
{
    script.Always(Selecionar, {.records = Services(2)});
    WidgetTrace trace;
    Use(*pesquisa, [&] {
        toolkit.Observer(&trace);
        Search("banho");
        toolkit.Observer(nullptr);
    });
    EXPECT_GT(trace.LastPlace("picMensagem.Visible"), trace.LastPlace("msfgGrade.Visible"));
}

TEST_F(PickingAService, SaysThatNothingWasFoundAndSelectsTheText)
{
    Fill(3);
    Use(*pesquisa, [&] {
        Search("zebra");
        EXPECT_EQ(grade.Rows(), 1) << "the former rows went first";
        EXPECT_FALSE(pesquisa->picMensagem.Visible());
        EXPECT_EQ(caixa.Text(), "zebra");
        EXPECT_EQ(caixa.Status(), find_status::Clear);
        EXPECT_FALSE(pesquisa->IgnorarPesquisa) << "putting the box back has used it up";
    });
    EXPECT_EQ(
        Boxes(),
        (std::vector<std::string>{
            R"(box information "Kova" "Nenhum serviço encontrado  como o valor 'zebra' informado e com o )"
            R"(tipo de serviço 'Banho e tosa'." -> ok)"}));
    EXPECT_EQ(Logged("keys"), (std::vector<std::string>{"keys \"+({HOME})\""}));
    EXPECT_EQ(Calls().size(), 1U);
}

TEST_F(PickingAService, SearchesAnotherWordAtTheFirstPress)
{
    script.Always(Selecionar, {.records = Services(3)});
    Use(*pesquisa, [&] {
        Search("banho");
        Search("tosa");
        EXPECT_EQ(grade.Rows(), 4);
    });
    ASSERT_EQ(Calls().size(), 2U);
    EXPECT_NE(Calls()[1].find(R"(Text "tosa")"), std::string::npos);
}

TEST_F(PickingAService, SearchesAnotherWordAtTheFirstPressAlsoAfterTheWindowWasResized)
{
    script.Always(Selecionar, {.records = Services(3)});
    Use(*pesquisa, [&] {
        Search("banho");
        pesquisa->Formulario->Width(12000);
        Search("tosa");
        EXPECT_EQ(grade.Rows(), 4) << "the end of the former search is no search";
    });
    EXPECT_EQ(Calls().size(), 2U);
}

TEST_F(PickingAService, SaysNothingFoundOnceAlsoAfterTheWindowWasResized)
{
    script.Answer(Selecionar, {.records = Services(3)});
    Use(*pesquisa, [&] {
        Search("banho");
        pesquisa->Formulario->Width(12000);
        Search("zebra");
    });
    EXPECT_EQ(Boxes().size(), 1U);
}

TEST_F(PickingAService, PassesOnAFailedSearchAndPutsTheBoxBack)
{
    script.Answer(Selecionar, Failed());
    Use(*pesquisa, [&] {
        Search("banho");
        EXPECT_FALSE(pesquisa->picMensagem.Visible());
        EXPECT_TRUE(pesquisa->Formulario->Enabled());
        EXPECT_EQ(caixa.Status(), find_status::Clear);
    });
    EXPECT_EQ(Reports(), (std::vector<std::string>{FailedReport()}));
    EXPECT_EQ(Calls().size(), 1U);
    EXPECT_EQ(script.LiveObjects(), 0);
}

TEST_F(PickingAService, ReportsAMissingComponentOnceHoweverOftenItIsMissing)
{
    for (int time = 0; time < 3; ++time)
        script.FailCreate("KOVA_N_Servicos.clsServicos", Failure(429, "sem serviços"));
    Use(*pesquisa, [&] { Search("banho"); });
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find(", frmPesquisaDeServicos, PesquisarServico, Ponto: 1"), std::string::npos);
}

TEST_F(PickingAService, AsksForATypeBeforeItSearches)
{
    pesquisa->kvcmbTiposDeServicos.Clear();
    Use(*pesquisa, [&] { Search("banho"); });
    EXPECT_EQ(Boxes(),
              (std::vector<std::string>{R"(box information "Kova" "Selecione o tipo de serviço." -> ok)"}));
    EXPECT_EQ(Logged("focus"),
              (std::vector<std::string>{"focus frmPesquisaDeServicos.kvcmbTiposDeServicos"}));
    EXPECT_TRUE(Calls().empty());
}

TEST_F(PickingAService, StartsAnewWithAnotherType)
{
    Fill(3);
    Use(*pesquisa, [&] {
        Search("banho");
        pesquisa->IgnorarPesquisa = true;
        EXPECT_EQ(user.Choose("frmPesquisaDeServicos", "kvcmbTiposDeServicos", 0), "");
        EXPECT_EQ(grade.Rows(), 1);
        EXPECT_FALSE(pesquisa->IgnorarPesquisa);
        EXPECT_EQ(caixa.Text(), "");
        EXPECT_EQ(caixa.Status(), find_status::Clear);
        EXPECT_TRUE(dynamic_cast<toolkit::FindBoxModel&>(caixa).HasFocus());
    });
}

TEST_F(PickingAService, OnlyOpensItsBoxWhileTheTypesClickIsIgnored)
{
    Fill(3);
    caixa.Enabled(false);
    Principal.IgnorarClickDoTipoNaPesquisa = true;
    pesquisa->kvcmbTiposDeServicos.ListIndex(0);
    EXPECT_TRUE(caixa.Enabled());
    EXPECT_FALSE(Principal.IgnorarClickDoTipoNaPesquisa);
    EXPECT_EQ(grade.Rows(), 4) << "the rows stay";
}

TEST_F(PickingAService, ReadsNowhereWhetherPricesAreConsulted)
{
    pesquisa->FormularioDeConsultaDePreco = true;
    script.Always(Selecionar, {.records = Services(2)});
    Use(*pesquisa, [&] {
        Search("banho");
        user.Select("frmPesquisaDeServicos", "msfgGrade", 1);
    });
    EXPECT_TRUE(pesquisa->RegistroSelecionado);
    EXPECT_EQ(grade.ColWidth(4), 2100);
}

TEST_F(PickingAService, FailsUnderTheListsTagInItsBox)
{
    script.Always(Selecionar, {.records = Services(1)});
    // The error screen fails inside the search's end part; the box goes on, and its own Click is fine.
    toolkit.Observer(nullptr);
    struct FailingCombo : toolkit::AccessObserver {
        void Read(const toolkit::MemberAccess& access) override
        {
            if (access.control == "kvcmbTiposDeServicos" && access.member == "ListIndex")
                throw Failure(5, "falha");
        }
        void Write(const toolkit::MemberAccess&, const Value&) override { }
        void Call(const toolkit::MemberAccess&, const Value&) override { }
    } failing;
    Use(*pesquisa, [&] {
        user.Type("frmPesquisaDeServicos", "kvfndCodigoOuNome", "x");
        toolkit.Observer(&failing);
        user.Press("frmPesquisaDeServicos", "kvfndCodigoOuNome");
        toolkit.Observer(nullptr);
    });
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmLista, kvfndCodigoOuNome_Click, Ponto: 2"),
              std::string::npos)
        << Reports()[0];
}

class TheTypesOfTheDialog : public SearchTest {
protected:
    std::shared_ptr<frmPesquisaDeServicos> Loaded()
    {
        auto pesquisa = frmPesquisaDeServicos::Criar();
        pesquisa->EfetuarOPreenchimentoDaComboboxTiposDeServicos = true;
        pesquisa->Formulario->Load();
        return pesquisa;
    }
};

TEST_F(TheTypesOfTheDialog, AreFilledOnLoadingWhereTheCallerWantsIt)
{
    Principal.FiltroDosTiposDeServicos = 7;
    const auto pesquisa = Loaded();
    const KVComboBox& tipos = pesquisa->kvcmbTiposDeServicos;
    ASSERT_EQ(tipos.ListCount(), 4);
    EXPECT_EQ(tipos.List(0), "(Todos)");
    EXPECT_EQ(tipos.ItemData(0), 0);
    EXPECT_EQ(tipos.List(3), "Banho e tosa");
    EXPECT_EQ(tipos.ItemData(3), 4);
    EXPECT_EQ(tipos.ListIndex(), 0);
    EXPECT_TRUE(pesquisa->kvfndCodigoOuNome.Enabled());
    EXPECT_FALSE(Principal.IgnorarClickDoTipoNaPesquisa);
    EXPECT_EQ(pesquisa->kvcmdFechar.ToolTipText(), "Cancelar a pesquisa e fechar");
    EXPECT_EQ(Lines("call KOVA_N_TipoDeServ"),
              (std::vector<std::string>{"call " + Tipos + "(Double& 0) -> Integer 0"}));
}

TEST_F(TheTypesOfTheDialog, AreNotAskedForWhereTheCallerBringsItsOwn)
{
    const auto pesquisa = frmPesquisaDeServicos::Criar();
    pesquisa->ConfigurarGrade();
    EXPECT_TRUE(Lines("create KOVA_N_TipoDeServ").empty());
    EXPECT_EQ(pesquisa->kvcmbTiposDeServicos.ListCount(), 0);
}

TEST_F(TheTypesOfTheDialog, AreMissedInAMessage)
{
    script.Always(Tipos, {.records = {{"Nome", "Numero"}, {}}});
    const auto pesquisa = Loaded();
    EXPECT_EQ(
        Boxes(),
        (std::vector<std::string>{
            R"(box information "Kova" "Nenhum tipo de serviço cadastrado.\r\nÉ necessário ter no mínimo um )"
            R"(tipo de serviço cadastrado para incluir um agendamento." -> ok)"}));
    EXPECT_EQ(pesquisa->kvcmbTiposDeServicos.ListIndex(), -1);
    EXPECT_FALSE(pesquisa->kvfndCodigoOuNome.Enabled());
    EXPECT_EQ(pesquisa->kvcmdFechar.ToolTipText(), "Cancelar a pesquisa e fechar");
    EXPECT_TRUE(Lines("create KOVA_A_EfeitosDeTela").empty()) << "this fill leaves the dimming alone";
}

TEST_F(TheTypesOfTheDialog, PassOnWhatTheirComponentSaysOfItsFailure)
{
    script.Answer(Tipos, Failed());
    Loaded();
    EXPECT_EQ(Reports(), (std::vector<std::string>{FailedReport()}));
    EXPECT_EQ(script.LiveObjects(), 0);
}

} // namespace

} // namespace kova::agenda
