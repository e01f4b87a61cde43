// The animal: chosen among the customer's, or searched to find the customer.

#include "tests/unit/agenda/full_record/frmFichaCompleta_fixture.hpp"
#include "tests/unit/agenda/widget_log.hpp"

namespace kova::agenda {

namespace {

const std::string Selecionar = "KOVA_N_ClientAnim.clsAnimais.Selecionar";
const char* const Pesquisa = "kvfNomeDoAnimal";

class FichaCompletaAnimal : public FichaCompletaTest {
protected:
    FichaCompletaAnimal() { Prepare(); }

    void SearchByAnimal() { EXPECT_EQ(user.Click(Form, "optAgendarPor", 2), ""); }
    void AnswerOwners(std::vector<std::vector<Value>> rows)
    {
        script.Answer(Selecionar,
                      {.records = {{"CodigoDoCliente", "ApelidoOuNomeFantasia", "NomeOuRazaoSocial",
                                    "SituacaoDoCliente", "EnderecoCompleto", "TiposECanaisDeComunicacao",
                                    "VIP", "CategoriaDaCurvaABC", "Situacao"},
                                   std::move(rows)}});
    }
    static std::vector<Value> Owner(Double code, const char* name, Long situation = 1)
    {
        return {code, Text(name), Text(name) + " da Silva", situation, "Rua A, 1", "Tel. 1", "Sim",
                "A",  situation};
    }
    void AnswerAnimal(Integer result, const char* description = "")
    {
        script.Answer(
            Selecionar,
            {.result = result,
             .records = {{"Sexo", "CodigoDaEspecie", "NomeDaEspecie", "CodigoDaRaca", "NomeDaRaca", "Cor"},
                         {{"Fêmea", Long{8}, "Gato", Long{9}, "Siamês", "Preto"}}},
             .members = {{"DescricaoDaFalha", description},
                         {"NumeroDoErro", Long{17}},
                         {"DescricaoDoErro", "Sem conexão"},
                         {"LocalDoErro", "clsX"}}});
    }
    void ChooseRex()
    {
        ficha->kvfCodigoDoCliente.Text("12");
        Fill(ficha->kvcmbAnimal, {{"Rex", 3}});
        EXPECT_EQ(user.Choose(Form, "kvcmbAnimal", "Rex"), "");
    }
    /// Every control that a search by animal may touch holds something.
    void FillAll()
    {
        for (KVFind* find : {&ficha->kvfCodigoDoCliente, &ficha->kvfApelidoOuNomeFantasiaDoCliente,
                             &ficha->kvfNomeOuRazaoSocialDoCliente, &ficha->kvfEnderecoDoCliente}) {
            find->Text("cheio");
            find->Status(0);
        }
        ficha->kvtxtTiposECanaisDeComunicacao.Text("cheio");
        Fill(ficha->kvcmbAnimal, {{"Rex", 3}});
        ficha->kvtxtSexoDoAnimal.Text("cheio");
        ficha->kvtxtEspecieDoAnimal.Text("cheio");
        ficha->kvtxtEspecieDoAnimal.Tag("1");
        ficha->kvtxtRacaDoAnimal.Text("cheio");
        ficha->kvtxtRacaDoAnimal.Tag("2");
        ficha->kvtxtCorDoAnimal.Text("cheio");
    }
};

TEST_F(FichaCompletaAnimal, ShowsItsDataWhenChosen)
{
    Add([this] {
        AnswerAnimal(0);
        ChooseRex();
        EXPECT_EQ(Lines("call " + Selecionar),
                  Strings{"call " + Selecionar
                          + "(Long 2, Integer 0, Long 1, Long 3, Integer 1, Double 12) -> Integer 0"});
        EXPECT_EQ(AnimalTexts(), (Strings{"Rex", "Fêmea", "Gato", "Siamês", "Preto"}));
        EXPECT_EQ(ficha->kvtxtEspecieDoAnimal.Tag(), "8");
        EXPECT_EQ(ficha->kvtxtRacaDoAnimal.Tag(), "9");
        EXPECT_TRUE(Lines("set KOVA_N_ClientAnim").empty()) << "this class takes no user";
    });
}

TEST_F(FichaCompletaAnimal, KeepsWhatItShowsWhereNothingIsFound)
{
    Add([this] {
        FillAll();
        script.Answer(Selecionar, {});
        ficha->kvcmbAnimal.ListIndex(0);
        EXPECT_EQ(AnimalTexts(), (Strings{"Rex", "cheio", "cheio", "cheio", "cheio"}));
        EXPECT_TRUE(Boxes().empty());
    });
}

TEST_F(FichaCompletaAnimal, ActsOnEachAnswer)
{
    Add([this] {
        AnswerAnimal(1);
        ChooseRex();
        EXPECT_EQ(Reports(), Strings{ReportOfFailure()});
        const struct {
            Integer result;
            const char* kind;
        } refusals[]{{2, "information"}, {3, "critical"}};
        for (const auto& refusal : refusals) {
            toolkit.ClearLog();
            AnswerAnimal(refusal.result, "Animal inativo.");
            Answer();
            ChooseRex();
            EXPECT_EQ(Boxes(), Strings{Box(refusal.kind, "Animal inativo.")});
        }
        toolkit.ClearLog();
        AnswerAnimal(4);
        ChooseRex();
        EXPECT_TRUE(Boxes().empty());
        EXPECT_EQ(Reports().size(), 1U);
        EXPECT_EQ(ficha->kvtxtSexoDoAnimal.Text(), "");
        EXPECT_TRUE(ficha->Formulario->Enabled());
    });
}

TEST_F(FichaCompletaAnimal, WordsAMissingRowInItsOwnWay)
{
    Add([this] {
        ficha->kvcmbAnimal.ListIndex(-1);
        EXPECT_EQ(Reports(),
                  Strings{"call KOVA_A_MsgErro.clsMensagem.Exibir(Long& 381, Text& \"Houve um estouro no "
                          "processamento devido as diversas tentativas de conexão com o banco de dados.Para "
                          "preservar os dados foi preciso encerrar o Kova. Reinicie novamente o Kova.\", "
                          "Text& \"KOVA_A_Agenda, frmFichaCompleta, kvcmbAnimal_Click, Ponto: 2\", Text& "
                          "\"Kova\") -> Integer 0"});
    });
}

TEST_F(FichaCompletaAnimal, ReportsAnyOtherFailureInItsOwnWords)
{
    Add([this] {
        script.Fail(Selecionar, Failure(380, "Valor inválido"));
        ChooseRex();
        ASSERT_EQ(Reports().size(), 1U);
        EXPECT_NE(Reports()[0].find(R"(Long& 380, Text& "Valor inválido")"), std::string::npos);
    });
}

TEST_F(FichaCompletaAnimal, ObjectIsReleasedOnceItsRecordSetIsHeld)
{
    std::size_t ofTheList = 0, ofTheDetails = 0;
    WidgetLog widgets;
    Add([&, this] {
        AnswerCustomers({Customer(12, "Zé")});
        toolkit.Observer(&widgets);
        widgets.Before("frmFichaCompleta.kvcmbAnimal.AddItem", [&, this] {
            ofTheList = Lines("release KOVA_N_ClientAnim.clsAnimais").size();
            widgets.Before("frmFichaCompleta.kvtxtSexoDoAnimal.Text", [&, this] {
                ofTheDetails = Lines("release KOVA_N_ClientAnim.clsAnimais").size();
            });
        });
        Search("kvfCodigoDoCliente", "12");
        toolkit.Observer(nullptr);
    });
    EXPECT_EQ(ofTheList, 1U);
    EXPECT_EQ(ofTheDetails, 2U);
}

TEST_F(FichaCompletaAnimal, TheChoiceOfTheSearchSaysWhereTabStopsBeforeWhatIsOpen)
{
    WidgetLog widgets;
    const auto stops = [&](const char* option, Integer index) {
        widgets.Clear();
        EXPECT_EQ(user.Click(Form, option, index), "");
        Strings written;
        for (const std::string& line : widgets.Of("frmFichaCompleta.")) {
            const std::string member = line.substr(std::string("frmFichaCompleta.").size());
            if (member.find(".TabStop ") != std::string::npos
                || member.find(".Enabled ") != std::string::npos)
                written.push_back(member);
        }
        return written;
    };
    Add([&, this] {
        toolkit.Observer(&widgets);
        EXPECT_EQ(
            stops("optAgendarPor", 2),
            (Strings{"kvfApelidoOuNomeFantasiaDoCliente.TabStop Boolean False",
                     "kvfNomeOuRazaoSocialDoCliente.TabStop Boolean False",
                     "kvfCodigoDoCliente.TabStop Boolean False", "kvfEnderecoDoCliente.TabStop Boolean False",
                     "kvcmbAnimal.TabStop Boolean False", "kvfNomeDoAnimal.TabStop Boolean True",
                     "kvfApelidoOuNomeFantasiaDoCliente.Enabled Boolean False",
                     "kvfNomeOuRazaoSocialDoCliente.Enabled Boolean False",
                     "kvfCodigoDoCliente.Enabled Boolean False", "kvfEnderecoDoCliente.Enabled Boolean False",
                     "kvcmbAnimal.Enabled Boolean False", "kvfNomeDoAnimal.Enabled Boolean True"}));
        EXPECT_EQ(
            stops("optAgendarPor", 1),
            (Strings{"kvfApelidoOuNomeFantasiaDoCliente.TabStop Boolean True",
                     "kvfNomeOuRazaoSocialDoCliente.TabStop Boolean True",
                     "kvfCodigoDoCliente.TabStop Boolean True", "kvfEnderecoDoCliente.TabStop Boolean True",
                     "kvfNomeDoAnimal.TabStop Boolean True", "kvfNomeDoAnimal.TabStop Boolean False",
                     "kvfApelidoOuNomeFantasiaDoCliente.Enabled Boolean True",
                     "kvfNomeOuRazaoSocialDoCliente.Enabled Boolean True",
                     "kvfCodigoDoCliente.Enabled Boolean True", "kvfEnderecoDoCliente.Enabled Boolean True",
                     "kvcmbAnimal.Enabled Boolean False", "kvfNomeDoAnimal.Enabled Boolean False"}));
        toolkit.Observer(nullptr);
    });
}

TEST_F(FichaCompletaAnimal, TheChoiceOfTheSearchSwapsTheBoxes)
{
    Add([this] {
        FillAll();
        SearchByAnimal();
        EXPECT_EQ(CustomerTexts(), Strings(5));
        EXPECT_EQ(AnimalTexts(), Strings(5));
        EXPECT_EQ(ficha->kvtxtEspecieDoAnimal.Tag() + ficha->kvtxtRacaDoAnimal.Tag(), "12");
        EXPECT_TRUE(ficha->kvfNomeDoAnimal.Visible());
        EXPECT_TRUE(ficha->kvfNomeDoAnimal.Enabled());
        EXPECT_TRUE(ficha->kvfNomeDoAnimal.TabStop());
        EXPECT_FALSE(ficha->kvcmbAnimal.Visible());
        EXPECT_FALSE(ficha->kvcmbAnimal.Enabled());
        EXPECT_FALSE(ficha->kvcmbAnimal.TabStop());
        for (const KVFind* find : {&ficha->kvfCodigoDoCliente, &ficha->kvfApelidoOuNomeFantasiaDoCliente,
                                   &ficha->kvfNomeOuRazaoSocialDoCliente, &ficha->kvfEnderecoDoCliente}) {
            EXPECT_FALSE(find->Enabled()) << find->Name();
            EXPECT_FALSE(find->TabStop()) << find->Name();
            EXPECT_EQ(find->Status(), 2) << find->Name();
        }

        ficha->kvfNomeDoAnimal.Text("resto");
        FillAll();
        EXPECT_EQ(user.Click(Form, "optAgendarPor", 1), "");
        EXPECT_EQ(CustomerTexts(), Strings(5));
        EXPECT_EQ(ficha->kvcmbAnimal.ListCount(), 0);
        EXPECT_FALSE(ficha->kvfNomeDoAnimal.Visible());
        EXPECT_FALSE(ficha->kvfNomeDoAnimal.Enabled());
        EXPECT_FALSE(ficha->kvfNomeDoAnimal.TabStop());
        EXPECT_TRUE(ficha->kvcmbAnimal.Visible());
        EXPECT_FALSE(ficha->kvcmbAnimal.Enabled());
        EXPECT_TRUE(ficha->kvfEnderecoDoCliente.Enabled());
        EXPECT_TRUE(ficha->kvfEnderecoDoCliente.TabStop());

        SearchByAnimal();
        EXPECT_EQ(ficha->kvfNomeDoAnimal.Text(), "");
        EXPECT_EQ(ficha->kvfNomeDoAnimal.Status(), 2);
    });
}

TEST_F(FichaCompletaAnimal, SearchFindsTheOwnerAndTheOneAnimal)
{
    Add([this] {
        SearchByAnimal();
        AnswerOwners({Owner(12, "Zé")});
        Search(Pesquisa, " Rex ");
        EXPECT_EQ(Lines("call " + Selecionar + "(").front(),
                  "call " + Selecionar
                      + R"((Long 2, Integer 0, Long 1, Text& "Rex", Integer 1, Double 0) -> Integer 0)");
        EXPECT_EQ(CustomerTexts(), (Strings{"12", "Zé", "Zé da Silva", "Rua A, 1", "Tel. 1"}));
        EXPECT_EQ(ficha->lblCliente.Caption(), "Cliente*") << "no marks by this search";
        EXPECT_EQ(AnimalTexts(), (Strings{"Rex", "Macho", "Cão", "Poodle", "Branco"}));
        EXPECT_EQ(ficha->kvfNomeDoAnimal.Text(), "Rex");
        EXPECT_TRUE(ficha->kvfNomeDoAnimal.Visible());
        EXPECT_EQ(Focused(), "kvcmbTiposDeServicos");
    });
}

TEST_F(FichaCompletaAnimal, SearchGivesWayToTheComboWhereTheOwnerHasSeveral)
{
    ScriptAnimals({{"Rex", 3}, {"Mel", 4}, {"Bob", 5}});
    Add([this] {
        SearchByAnimal();
        AnswerOwners({Owner(12, "Zé")});
        Search(Pesquisa, "Rex");
        EXPECT_FALSE(ficha->kvfNomeDoAnimal.Visible());
        EXPECT_TRUE(ficha->kvcmbAnimal.Visible());
        EXPECT_TRUE(ficha->kvcmbAnimal.Enabled());
        EXPECT_EQ(ficha->kvcmbAnimal.ListCount(), 3);
        EXPECT_EQ(Focused(), "kvcmbAnimal");
    });
}

TEST_F(FichaCompletaAnimal, SearchNeedsThreeCharactersOrANumber)
{
    Add([this] {
        SearchByAnimal();
        Answer();
        Search(Pesquisa, "Re");
        EXPECT_EQ(Boxes(),
                  Strings{Box("information", "Informe 3 caracteres ou mais para iniciar a pesquisa.")});
        EXPECT_TRUE(Lines("call " + Selecionar).empty());
        AnswerOwners({Owner(12, "Zé")});
        Search(Pesquisa, "12");
        EXPECT_EQ(ficha->kvfCodigoDoCliente.Text(), "12");
        EXPECT_EQ(Boxes().size(), 1U);
    });
}

TEST_F(FichaCompletaAnimal, SearchWithoutAHitEmptiesThreeBoxesButNotTheNickname)
{
    Add([this] {
        SearchByAnimal();
        script.Answer(Selecionar, {});
        Answer();
        Type(Pesquisa, "Totó");
        FillAll();
        Press(Pesquisa);
        EXPECT_EQ(Boxes(),
                  Strings{Box("information", "Nenhum cliente encontrado com o nome do animal 'Totó'.")});
        EXPECT_EQ(Logged("keys"), Strings{"keys \"+({HOME})\""});
        EXPECT_EQ(ficha->kvfNomeDoAnimal.Text(), "Totó");
        EXPECT_EQ(CustomerTexts(), (Strings{"", "cheio", "", "", ""}));
        EXPECT_EQ(ficha->kvfApelidoOuNomeFantasiaDoCliente.Status(), 0);
        EXPECT_FALSE(ficha->kvfApelidoOuNomeFantasiaDoCliente.Enabled());
        EXPECT_TRUE(ficha->kvfCodigoDoCliente.Enabled());
        EXPECT_EQ(ficha->kvfCodigoDoCliente.Status(), 2);
        EXPECT_EQ(ficha->kvcmbAnimal.ListCount(), 1) << "the animal's fields are left alone";
        EXPECT_EQ(Focused(), Pesquisa);
    });
}

TEST_F(FichaCompletaAnimal, SearchRefusesAnOwnerWhoMustNotBeUsed)
{
    Add([this] {
        SearchByAnimal();
        const struct {
            Long situation;
            const char* state;
        } rows[]{{2, "inativo"}, {3, "bloqueado"}, {4, "excluído"}};
        for (const auto& row : rows) {
            toolkit.ClearLog();
            AnswerOwners({Owner(12, "Zé", row.situation)});
            Answer();
            Search(Pesquisa, "Rex");
            EXPECT_EQ(Boxes(),
                      Strings{Box("information",
                                  std::string("Cliente ") + row.state
                                      + ". Para mais informações, entre em contato com o "
                                        "departamento financeiro.")});
            EXPECT_EQ(CustomerTexts(), Strings(5));
            EXPECT_TRUE(Logged("keys").empty());
            EXPECT_EQ(Focused(), Pesquisa);
        }
    });
}

TEST_F(FichaCompletaAnimal, SearchLetsTheUserPickAmongSeveralOwners)
{
    Add([this] {
        SearchByAnimal();
        AnswerOwners({Owner(12, "Zé"), Owner(15, "Bia")});
        Inside([this] { EXPECT_EQ(user.Select("frmPesquisaDeClientes", "msfgGrade", 2), ""); });
        Search(Pesquisa, "Rex");
        EXPECT_EQ(CustomerTexts(), (Strings{"15", "Bia", "Bia da Silva", "Rua A, 1", "Tel. 1"}));
        EXPECT_EQ(ficha->lblCliente.Caption(), "Cliente*");
        EXPECT_EQ(toolkit.FindForm("frmPesquisaDeClientes"), nullptr);

        AnswerOwners({Owner(12, "Zé"), Owner(15, "Bia")});
        Inside([this] { EXPECT_EQ(user.Click("frmPesquisaDeClientes", "kvcmdFechar"), ""); });
        ficha->Estado.IgnorarEventoDeCampo = false;
        Search(Pesquisa, "Rex");
        EXPECT_EQ(CustomerTexts(), Strings(5));
        EXPECT_EQ(Focused(), Pesquisa);
        EXPECT_EQ(SelectedIn(Pesquisa), 3U);
    });
}

TEST_F(FichaCompletaAnimal, SearchThatFailsIsReported)
{
    Add([this] {
        SearchByAnimal();
        AnswerFailure(Selecionar);
        Search(Pesquisa, "Rex");
        EXPECT_EQ(Reports(), Strings{ReportOfFailure()});
        EXPECT_TRUE(Boxes().empty());
        EXPECT_EQ(Focused(), Pesquisa);
    });
}

TEST_F(FichaCompletaAnimal, APressOnWhatWasFoundEmptiesTheSearch)
{
    Add([this] {
        SearchByAnimal();
        AnswerOwners({Owner(12, "Zé")});
        Search(Pesquisa, "Rex");
        Press(Pesquisa);
        EXPECT_EQ(ficha->kvfNomeDoAnimal.Text(), "");
        EXPECT_EQ(CustomerTexts(), (Strings{"", "Zé", "", "", ""}));
        EXPECT_EQ(Focused(), Pesquisa);
    });
}

TEST_F(FichaCompletaAnimal, TypingANewSearchEmptiesTheFormerCustomer)
{
    Add([this] {
        SearchByAnimal();
        FillAll();
        ficha->Estado.IgnorarEventoDeCampo = true;
        Type(Pesquisa, "R");
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        EXPECT_EQ(ficha->kvfCodigoDoCliente.Text(), "cheio") << "the guard swallows the first key";
        Type(Pesquisa, "e");
        EXPECT_EQ(CustomerTexts(), Strings(5));
        EXPECT_EQ(AnimalTexts(), Strings(5));
        EXPECT_EQ(ficha->kvfCodigoDoCliente.Status(), 2);
        EXPECT_EQ(ficha->kvtxtEspecieDoAnimal.Tag(), "1");
    });
}

} // namespace

} // namespace kova::agenda
