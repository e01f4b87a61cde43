// Searching and choosing inside the picker of customers.

#include "agenda/search/frmPesquisaDeClientes.hpp"
#include "tests/unit/agenda/search/search_fixture.hpp"

namespace kova::agenda {

namespace {

using scenario::RecordTable;
using toolkit::FormKey;

const std::string Selecionar = "KOVA_N_ClientAnim.clsClientes.Selecionar";
const char* const Form = "frmPesquisaDeClientes";
const char* const Box = "kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo";

class PickingACustomer : public SearchTest {
protected:
    PickingACustomer() { pesquisa->ConfigurarGrade(); }

    /// One customer for each situation.
    static RecordTable Customers(const std::vector<Long>& situations)
    {
        RecordTable table{{"CodigoDoCliente", "ApelidoOuNomeFantasia", "NomeOuRazaoSocial", "Situacao",
                           "EnderecoCompleto", "TiposECanaisDeComunicacao", "VIP", "CategoriaDaCurvaABC"},
                          {}};
        for (const Long situation : situations)
            table.rows.push_back(
                {Double(table.rows.size() + 1), "Zé", "José", situation, "Rua A", "", "", "B"});
        return table;
    }
    void Fill(const std::vector<Long>& situations)
    {
        auto records = Records(Customers(situations));
        pesquisa->PreencherGrade(records);
    }
    void Search(const std::string& text)
    {
        EXPECT_EQ(user.Type(Form, Box, text), "");
        EXPECT_EQ(user.Press(Form, Box), "");
    }
    std::vector<std::string> Calls() const { return Lines("call " + Selecionar); }
    static std::string Refused(const std::string& state)
    {
        return R"(box information "Kova" "Cliente )" + state
            + R"(. Para mais informações, entre em contato com o departamento financeiro." -> ok)";
    }

    std::shared_ptr<frmPesquisaDeClientes> pesquisa = frmPesquisaDeClientes::Criar();
    MSFlexGrid& grade = pesquisa->msfgGrade;
    KVFind& caixa = pesquisa->kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo;
};

TEST_F(PickingACustomer, ChoosesTheRowThatIsClickedAndHides)
{
    Fill({1, 1, 1});
    Use(*pesquisa, [&] { EXPECT_EQ(user.Select(Form, "msfgGrade", 3), ""); });
    EXPECT_TRUE(pesquisa->RegistroSelecionado);
    EXPECT_EQ(grade.TextMatrix(grade.RowSel(), 1), "3");
    EXPECT_FALSE(pesquisa->Formulario->Visible());
}

TEST_F(PickingACustomer, ChoosesNothingByAClickOnTheHeader)
{
    Fill({2, 1});
    Use(*pesquisa, [&] {
        user.ClickAt(Form, "msfgGrade", 600, 100);
        EXPECT_TRUE(pesquisa->Formulario->Visible());
    });
    EXPECT_FALSE(pesquisa->RegistroSelecionado);
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(PickingACustomer, RefusesThreeSituationsWithTheirMessages)
{
    const std::pair<Long, const char*> refusals[] = {{2, "inativo"}, {3, "bloqueado"}, {4, "excluído"}};
    for (const auto& [situation, state] : refusals) {
        Fill({1, situation});
        toolkit.ClearLog();
        Use(*pesquisa, [&] {
            user.Select(Form, "msfgGrade", 2);
            EXPECT_TRUE(pesquisa->Formulario->Visible()) << state;
        });
        EXPECT_FALSE(pesquisa->RegistroSelecionado) << state;
        EXPECT_EQ(Boxes(), (std::vector<std::string>{Refused(state)}));
    }
}

TEST_F(PickingACustomer, GivesTheGridTheFocusAfterARefusal)
{
    Fill({2});
    Use(*pesquisa, [&] {
        user.Focus(Form, Box);
        user.Select(Form, "msfgGrade", 1);
    });
    EXPECT_EQ(Logged("focus"), (std::vector<std::string>{"focus frmPesquisaDeClientes.msfgGrade"}));
}

TEST_F(PickingACustomer, AcceptsEveryOtherSituation)
{
    for (const Long situation : {0, 1, 5, -1}) {
        Fill({situation});
        Use(*pesquisa, [&] { user.Select(Form, "msfgGrade", 1); });
        EXPECT_TRUE(pesquisa->RegistroSelecionado) << situation;
    }
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(PickingACustomer, ChoosesByArrowKeysAndEnter)
{
    Fill({1, 1, 1});
    Use(*pesquisa, [&] {
        user.GridKey(Form, "msfgGrade", toolkit::GridKey::Down);
        user.GridKey(Form, "msfgGrade", toolkit::GridKey::Down);
        EXPECT_TRUE(ModelOf(grade).IsHighlighted(3, 5));
        user.PressKey(Form, FormKey::Enter);
    });
    EXPECT_TRUE(pesquisa->RegistroSelecionado);
    EXPECT_EQ(grade.RowSel(), 3);
}

TEST_F(PickingACustomer, ClosesWithoutAChoiceByItsButtonAndByEscape)
{
    Fill({1});
    Use(*pesquisa, [&] { user.Click(Form, "kvcmdFechar"); });
    EXPECT_FALSE(pesquisa->Formulario->Visible());
    Use(*pesquisa, [&] { user.PressKey(Form, FormKey::Escape); });
    EXPECT_FALSE(pesquisa->Formulario->Visible());
    EXPECT_FALSE(pesquisa->RegistroSelecionado);
    EXPECT_TRUE(toolkit.Queue().Unexpected().empty());
}

TEST_F(PickingACustomer, ForgetsAFormerChoiceWhenItIsShownAgainAndWhenItIsUnloaded)
{
    Fill({1});
    Use(*pesquisa, [&] { user.Select(Form, "msfgGrade", 1); });
    ASSERT_TRUE(pesquisa->RegistroSelecionado);
    Use(*pesquisa, [&] { EXPECT_FALSE(pesquisa->RegistroSelecionado); });
    pesquisa->RegistroSelecionado = true;
    pesquisa->Formulario->Unload();
    EXPECT_FALSE(pesquisa->RegistroSelecionado);
}

TEST_F(PickingACustomer, AsksForTheFreeTextOnly)
{
    script.Always(Selecionar, {.records = Customers({1, 1})});
    Use(*pesquisa, [&] {
        Search("jose");
        EXPECT_EQ(grade.Rows(), 3);
        EXPECT_TRUE(grade.Visible()) << "shown again with its rows";
        EXPECT_FALSE(pesquisa->picMensagem.Visible());
    });
    EXPECT_EQ(Lines("set KOVA_N_ClientAnim"),
              (std::vector<std::string>{"set KOVA_N_ClientAnim.clsClientes.DadosDoUsuario Object <user>"}));
    EXPECT_EQ(
        Calls(),
        (std::vector<std::string>{
            "call " + Selecionar
            + R"((Long 2, Integer 0, Long 0, Text "jose", Text "", Double 0, Text "", Text "", Text "", )"
              R"(Double 0, Text "") -> Integer 0)"}));
    EXPECT_EQ(Logged("focus"), (std::vector<std::string>{"focus frmPesquisaDeClientes." + std::string(Box)}));
    EXPECT_EQ(script.LiveObjects(), 0);
}

TEST_F(PickingACustomer, ChoosesASingleHitByItself)
{
    script.Always(Selecionar, {.records = Customers({1})});
    Use(*pesquisa, [&] {
        Search("jose");
        EXPECT_FALSE(pesquisa->Formulario->Visible());
    });
    EXPECT_TRUE(pesquisa->RegistroSelecionado);
    EXPECT_FALSE(pesquisa->picMensagem.Visible()) << "the plate went as soon as the answer was there";
    EXPECT_TRUE(pesquisa->Formulario->Enabled());
}

TEST_F(PickingACustomer, ShowsASingleHitThatCannotBeChosen)
{
    script.Always(Selecionar, {.records = Customers({3})});
    Use(*pesquisa, [&] {
        Search("jose");
        EXPECT_TRUE(pesquisa->Formulario->Visible());
        EXPECT_TRUE(grade.Visible());
        EXPECT_EQ(grade.Rows(), 2);
    });
    EXPECT_FALSE(pesquisa->RegistroSelecionado);
    EXPECT_EQ(Boxes(), (std::vector<std::string>{Refused("bloqueado")}));
    EXPECT_EQ(Logged("focus"), (std::vector<std::string>{"focus frmPesquisaDeClientes.msfgGrade"}));
}

TEST_F(PickingACustomer, TakesItsPlateAwayBeforeItFillsTheGrid)
{
    script.Always(Selecionar, {.records = Customers({1, 1})});
    WidgetTrace trace;
    Use(*pesquisa, [&] {
        toolkit.Observer(&trace);
        Search("jose");
        toolkit.Observer(nullptr);
    });
    EXPECT_LT(trace.LastPlace("picMensagem.Visible"), trace.Place("msfgGrade.CellBackColor"));
}

TEST_F(PickingACustomer, SaysThatNothingWasFoundAndSelectsTheText)
{
    Fill({1, 1});
    Use(*pesquisa, [&] {
        Search("zebra");
        EXPECT_EQ(grade.Rows(), 1) << "the former rows went first";
        EXPECT_EQ(caixa.Text(), "zebra");
        EXPECT_EQ(caixa.Status(), find_status::Clear);
        EXPECT_FALSE(pesquisa->IgnorarPesquisa);
    });
    EXPECT_EQ(
        Boxes(),
        (std::vector<std::string>{
            R"(box information "Kova" "Nenhum cliente encontrado  como o valor 'zebra' informado." -> ok)"}));
    EXPECT_EQ(Logged("keys"), (std::vector<std::string>{"keys \"+({HOME})\""}));
    EXPECT_EQ(Calls().size(), 1U);
}

TEST_F(PickingACustomer, SearchesAnotherWordAtTheFirstPressAlsoAfterTheWindowWasResized)
{
    script.Always(Selecionar, {.records = Customers({1, 1})});
    Use(*pesquisa, [&] {
        Search("jose");
        pesquisa->Formulario->Width(12000);
        Search("maria");
        EXPECT_EQ(grade.Rows(), 3);
    });
    ASSERT_EQ(Calls().size(), 2U);
    EXPECT_NE(Calls()[1].find(R"(Text "maria")"), std::string::npos);
}

TEST_F(PickingACustomer, PassesOnAFailedSearchAndPutsTheBoxBack)
{
    script.Answer(Selecionar, Failed());
    Use(*pesquisa, [&] {
        Search("jose");
        EXPECT_FALSE(pesquisa->picMensagem.Visible());
        EXPECT_EQ(caixa.Status(), find_status::Clear);
    });
    EXPECT_EQ(Reports(), (std::vector<std::string>{FailedReport()}));
    EXPECT_EQ(Calls().size(), 1U);
    EXPECT_EQ(script.LiveObjects(), 0);
}

TEST_F(PickingACustomer, ReportsAMissingComponentOnceHoweverOftenItIsMissing)
{
    for (int time = 0; time < 3; ++time)
        script.FailCreate("KOVA_N_ClientAnim.clsClientes", Failure(429, "sem clientes"));
    Use(*pesquisa, [&] { Search("jose"); });
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find(", frmPesquisaDeClientes, PesquisarCliente, Ponto: 1"), std::string::npos);
}

TEST_F(PickingACustomer, MayBeClosedInsideTheWait)
{
    script.Always(Selecionar, {.records = Customers({1, 1})});
    toolkit.Queue().QueueDuringPause([&] { pesquisa->Formulario->Unload(); });
    Use(*pesquisa, [&] { Search("jose"); });
    EXPECT_FALSE(pesquisa->Formulario->Visible());
    EXPECT_FALSE(pesquisa->RegistroSelecionado);
    EXPECT_TRUE(Reports().empty());
}

} // namespace

} // namespace kova::agenda
