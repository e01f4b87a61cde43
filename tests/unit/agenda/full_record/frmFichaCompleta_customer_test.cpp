// The customer's four boxes: one search, four sources.

#include "tests/unit/agenda/full_record/frmFichaCompleta_fixture.hpp"

namespace kova::agenda {

namespace {

using toolkit::FormKey;

const std::string Clientes = "KOVA_N_ClientAnim.clsClientes";
const char* const Apelido = "kvfApelidoOuNomeFantasiaDoCliente";
const char* const Nome = "kvfNomeOuRazaoSocialDoCliente";
const char* const Codigo = "kvfCodigoDoCliente";
const char* const Endereco = "kvfEnderecoDoCliente";

class FichaCompletaCustomer : public FichaCompletaTest {
protected:
    FichaCompletaCustomer() { Prepare(); }

    KVFind& Find(const char* name) { return dynamic_cast<KVFind&>(ficha->Formulario->Control(name)); }
    /// The arguments of the search that tell one source from another.
    std::string SearchCall(const std::string& word, const std::string& code, const std::string& address)
    {
        return "call " + Clientes + R"(.Selecionar(Long 2, Integer 0, Long 0, Text "", Text& ")" + word
            + R"(", Double& )" + code + R"(, Text& ")" + address
            + R"(", Text "", Text "", Double 0, Text "") -> Integer 0)";
    }
    /// What a form without a customer shows beside the box that searched.
    void ExpectEmptyButFor(const char* source)
    {
        for (const char* name : {Apelido, Nome, Codigo, Endereco}) {
            if (std::string(name) == source)
                continue;
            EXPECT_EQ(Find(name).Text(), "") << name;
            EXPECT_EQ(Find(name).Status(), 2) << name;
            EXPECT_TRUE(Find(name).Enabled()) << name;
        }
        EXPECT_EQ(ficha->kvtxtTiposECanaisDeComunicacao.Text(), "");
        EXPECT_EQ(ficha->kvcmbAnimal.ListCount(), 0);
        EXPECT_EQ(AnimalTexts(), Strings(5));
        EXPECT_EQ(Focused(), source);
    }
    void FindVip()
    {
        AnswerCustomers({Customer(12, "Zé", 1, "Sim", "A")});
        Search(Codigo, "12");
        EXPECT_EQ(ficha->lblCliente.Caption(), "Cliente* [ VIP - A ]");
    }
    /// Presses a row of the picker.
    void Pick(Long row)
    {
        Inside([this, row] { EXPECT_EQ(user.Select("frmPesquisaDeClientes", "msfgGrade", row), ""); });
    }
};

TEST_F(FichaCompletaCustomer, IsSearchedByTheFieldOfEachBox)
{
    Add([this] {
        const struct {
            const char* box;
            const char* text;
            std::string call;
        } sources[]{
            {Apelido, " Zé ", SearchCall("Zé", "0", "")},
            {Nome, "José", SearchCall("José", "0", "")},
            {Codigo, "7", SearchCall("", "7", "")},
            {Endereco, "Rua A", SearchCall("", "0", "Rua A")},
        };
        for (const auto& source : sources) {
            lines.clear();
            AnswerCustomers({Customer(12, "Zé")});
            Search(source.box, source.text);
            const auto calls = Lines("call " + Clientes);
            ASSERT_EQ(calls.size(), 1U) << source.box;
            EXPECT_EQ(calls[0], source.call);
            EXPECT_EQ(Lines("set " + Clientes), Strings{"set " + Clientes + ".DadosDoUsuario Object <user>"});
            EXPECT_EQ(CustomerTexts(), (Strings{"12", "Zé", "Zé da Silva", "Rua A, 1", "Tel. 1"}));
        }
    });
}

TEST_F(FichaCompletaCustomer, NeedsThreeCharactersButForItsCode)
{
    Add([this] {
        for (const char* box : {Apelido, Nome, Endereco}) {
            Answer();
            Search(box, "Zé");
            EXPECT_EQ(Boxes().back(),
                      Box("information", "Informe 3 caracteres ou mais para iniciar a pesquisa."));
            EXPECT_EQ(Find(box).Text(), "Zé") << box;
            EXPECT_TRUE(Find(box).Enabled()) << box;
        }
        EXPECT_TRUE(Lines("call " + Clientes).empty());
        AnswerCustomers({Customer(12, "Zé")});
        Search(Codigo, "12");
        EXPECT_EQ(Lines("call " + Clientes).size(), 1U);
        EXPECT_EQ(Boxes().size(), 3U);
    });
}

TEST_F(FichaCompletaCustomer, WithOneAnimalLeadsToTheType)
{
    Add([this] {
        FindVip();
        EXPECT_EQ(AnimalTexts(), (Strings{"Rex", "Macho", "Cão", "Poodle", "Branco"}));
        EXPECT_EQ(Focused(), "kvcmbTiposDeServicos");
        EXPECT_TRUE(ficha->kvcmbAnimal.Enabled());
        for (const char* box : {Apelido, Nome, Codigo, Endereco})
            EXPECT_EQ(Find(box).Status(), 0) << box;
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo) << "the filling has spent the guard";
    });
}

TEST_F(FichaCompletaCustomer, WithSeveralAnimalsLeadsToTheAnimal)
{
    ScriptAnimals({{"Rex", 3}, {"Mel", 4}});
    Add([this] {
        AnswerCustomers({Customer(12, "Zé")});
        Search(Apelido, "Zé d");
        EXPECT_EQ(Focused(), "kvcmbAnimal");
        EXPECT_EQ(ficha->kvcmbAnimal.ListIndex(), -1);
        EXPECT_EQ(ficha->kvcmbAnimal.ListCount(), 2);
        EXPECT_EQ(ficha->kvcmbAnimal.ItemData(1), 4);
    });
}

TEST_F(FichaCompletaCustomer, WithoutAnAnimalStaysFilled)
{
    ScriptAnimals({});
    Add([this] {
        AnswerCustomers({Customer(12, "Zé")});
        Answer();
        Search(Codigo, "12");
        EXPECT_EQ(Boxes(),
                  Strings{Box("information",
                              R"(Nenhum animal cadastrado.\r\nÉ necessário ter ao menos um animal )"
                              "cadastrado com as especificações informadas para incluir ou alterar "
                              "um agendamento.")});
        EXPECT_EQ(ficha->kvfApelidoOuNomeFantasiaDoCliente.Text(), "Zé");
        EXPECT_EQ(Focused(), Codigo);
    });
}

TEST_F(FichaCompletaCustomer, StaysFilledWhereTheAnimalsCannotBeListed)
{
    Add([this] {
        AnswerCustomers({Customer(12, "Zé")});
        AnswerFailure("KOVA_N_ClientAnim.clsAnimais.SelecionarParaComboBoxFiltradoPorCliente");
        Search(Codigo, "12");
        EXPECT_EQ(Reports(), Strings{ReportOfFailure()});
        EXPECT_EQ(ficha->kvfApelidoOuNomeFantasiaDoCliente.Text(), "Zé");
        EXPECT_TRUE(ficha->Formulario->Enabled());
        EXPECT_EQ(Focused(), Codigo);
    });
}

TEST_F(FichaCompletaCustomer, NotFoundSaysByWhatAndKeepsTheTextSelected)
{
    Add([this] {
        const struct {
            const char* box;
            const char* text;
            const char* message;
        } rows[]{
            {Apelido, "Ninguém", "Nenhum cliente encontrado com o apelido ou nome fantasia 'Ninguém'."},
            {Nome, "Ninguém", "Nenhum cliente encontrado com o nome ou razão social 'Ninguém'."},
            {Endereco, "Rua X", "Nenhum cliente encontrado com o endereço 'Rua X'."},
            {Codigo, "99", "Nenhum cliente encontrado com o código '99' informado."},
            {Codigo, "noventa", "Nenhum cliente encontrado com o código '0' informado."},
        };
        for (const auto& row : rows) {
            FindVip();
            toolkit.ClearLog();
            ficha->Estado.IgnorarEventoDeCampo = false;
            Answer();
            Search(row.box, row.text);
            EXPECT_EQ(Boxes(), Strings{Box("information", row.message)});
            EXPECT_EQ(Logged("keys"), Strings{"keys \"+({HOME})\""});
            EXPECT_EQ(Find(row.box).Text(), row.text);
            ExpectEmptyButFor(row.box);
        }
    });
}

TEST_F(FichaCompletaCustomer, InactiveBlockedOrDeletedIsRefusedAndAllBoxesAreEmptied)
{
    Add([this] {
        const struct {
            Long situation;
            const char* state;
        } rows[]{{2, "inativo"}, {3, "bloqueado"}, {4, "excluído"}};
        for (const auto& row : rows) {
            FindVip();
            toolkit.ClearLog();
            AnswerCustomers({Customer(13, "Bia", row.situation)});
            Answer();
            Search(Codigo, "13");
            EXPECT_EQ(Boxes(),
                      Strings{Box("information",
                                  std::string("Cliente ") + row.state
                                      + ". Para mais informações, entre em contato com o "
                                        "departamento financeiro.")});
            EXPECT_EQ(Find(Codigo).Text(), "");
            ExpectEmptyButFor(Codigo);
            EXPECT_EQ(ficha->lblCliente.Caption(), "Cliente*");
        }
        AnswerCustomers({Customer(13, "Bia", 5)});
        Search(Codigo, "13");
        EXPECT_EQ(Find(Apelido).Text(), "Bia") << "every other situation lets the customer be used";
    });
}

TEST_F(FichaCompletaCustomer, MarksStandInTheHeadButAreLeftByTheAddressBox)
{
    Add([this] {
        AnswerCustomers({Customer(12, "Zé", 1, "não", "B")});
        Search(Codigo, "12");
        EXPECT_EQ(ficha->lblCliente.Caption(), "Cliente* [ B ]");

        for (const char* box : {Apelido, Nome, Codigo, Endereco}) {
            const char* marks = std::string(box) == Endereco ? "Cliente* [ VIP - A ]" : "Cliente*";
            FindVip();
            Answer();
            Search(box, "nada");
            EXPECT_EQ(ficha->lblCliente.Caption(), marks) << box << " without a hit";
            FindVip();
            Press(box);
            EXPECT_EQ(ficha->lblCliente.Caption(), marks) << box << " cleared";
        }
    });
}

TEST_F(FichaCompletaCustomer, IsClearedByAPressOnABoxThatShowsOne)
{
    Add([this] {
        for (const char* box : {Apelido, Nome, Codigo, Endereco}) {
            FindVip();
            toolkit.ClearLog();
            Press(box);
            EXPECT_EQ(Find(box).Text(), "") << box;
            ExpectEmptyButFor(box);
            EXPECT_EQ(Logged("focus"), Strings{std::string("focus frmFichaCompleta.") + box});
        }
    });
}

TEST_F(FichaCompletaCustomer, TypingInABoxBlanksTheOthersAndNothingElse)
{
    Add([this] {
        for (const char* box : {Apelido, Nome, Codigo, Endereco}) {
            FindVip();
            EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo) << "the first key after a hit counts";
            Type(box, "b");
            for (const char* other : {Apelido, Nome, Codigo, Endereco}) {
                EXPECT_EQ(Find(other).Text(), std::string(other) == box ? "b" : "") << box;
                EXPECT_EQ(Find(other).Status(), 0) << other;
            }
            EXPECT_EQ(ficha->kvcmbAnimal.Text(), "Rex");
        }
    });
}

TEST_F(FichaCompletaCustomer, IsPickedWhereSeveralAreFound)
{
    Add([this] {
        AnswerCustomers({Customer(12, "Zé"), Customer(15, "Zeca", 1, "SIM", "C")});
        Pick(2);
        Search(Apelido, "Zec");
        EXPECT_EQ(CustomerTexts(), (Strings{"15", "Zeca", "Zeca da Silva", "Rua A, 1", "Tel. 1"}));
        EXPECT_EQ(ficha->lblCliente.Caption(), "Cliente* [ VIP - C ]");
        EXPECT_EQ(Find(Endereco).Status(), 0);
        EXPECT_EQ(Lines("call KOVA_N_ClientAnim.clsAnimais.SelecionarParaComboBoxFiltradoPorCliente").back(),
                  "call KOVA_N_ClientAnim.clsAnimais.SelecionarParaComboBoxFiltradoPorCliente(Double& 15, "
                  "Integer 1) -> Integer 0");
        const auto log = toolkit.Log();
        const auto repaint = std::find(log.begin(), log.end(), "repaint frmFichaCompleta");
        ASSERT_NE(repaint, log.end());
        EXPECT_EQ(*(repaint + 1), "show frmPesquisaDeClientes modal");
        EXPECT_EQ(Logged("unload"), Strings{"unload frmPesquisaDeClientes"});
        EXPECT_EQ(toolkit.FindForm("frmPesquisaDeClientes"), nullptr);
    });
}

TEST_F(FichaCompletaCustomer, IsNotChosenWhereThePickerIsClosed)
{
    Add([this] {
        for (const bool byButton : {true, false}) {
            AnswerCustomers({Customer(12, "Zé"), Customer(15, "Zeca")});
            Inside([this, byButton] {
                EXPECT_EQ(byButton ? user.Click("frmPesquisaDeClientes", "kvcmdFechar")
                                   : user.CloseForm("frmPesquisaDeClientes"),
                          "");
            });
            Search(Apelido, "Zec");
            EXPECT_EQ(Find(Apelido).Text(), "Zec");
            EXPECT_EQ(SelectedIn(Apelido), 3U) << "the next key replaces it";
            EXPECT_EQ(Logged("keys"), Strings()) << "by the focus alone";
            ExpectEmptyButFor(Apelido);
            EXPECT_EQ(toolkit.FindForm("frmPesquisaDeClientes"), nullptr);
        }
    });
}

TEST_F(FichaCompletaCustomer, CountsABusinessFailureAsNoHit)
{
    Add([this] {
        AnswerFailure(Clientes + ".Selecionar");
        Search(Nome, "José");
        EXPECT_EQ(Reports(), Strings{ReportOfFailure()});
        EXPECT_TRUE(Boxes().empty());
        EXPECT_EQ(Find(Nome).Text(), "José");
        ExpectEmptyButFor(Nome);
        EXPECT_FALSE(ficha->picMensagem.Visible());
    });
}

TEST_F(FichaCompletaCustomer, WaitsASecondBehindItsPlateForEachCall)
{
    Add([this] {
        toolkit.Queue().QueueDuringPause([this] {
            EXPECT_TRUE(ficha->picMensagem.Visible());
            EXPECT_FALSE(ficha->Formulario->Enabled());
            EXPECT_EQ(ficha->picMensagem.Left(),
                      ficha->Formulario->ScaleWidth() / 2 - ficha->picMensagem.Width() / 2);
            EXPECT_TRUE(Lines("create " + Clientes).empty());
        });
        FindVip();
        EXPECT_EQ(Logged("pause"), Strings(3, "pause 1")) << "customer, animals, animal";
        EXPECT_FALSE(ficha->picMensagem.Visible());
        EXPECT_TRUE(ficha->Formulario->Enabled());
    });
}

TEST_F(FichaCompletaCustomer, ReportsARunTimeFailureOnceByThePlaceItFellIn)
{
    Add([this] {
        script.FailCreate(Clientes, Failure(429, "Sem componente"));
        Search(Nome, "José");
        ASSERT_EQ(Reports().size(), 1U);
        EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmFichaCompleta, PesquisarCliente, Ponto: 1"),
                  std::string::npos);
        EXPECT_EQ(Find(Nome).Text(), "José") << "counts as no hit";
        EXPECT_EQ(Find(Apelido).Status(), 2);
    });
}

TEST_F(FichaCompletaCustomer, EnterSearchesWhatWasTyped)
{
    Add([this] {
        AnswerCustomers({Customer(12, "Zé")});
        Type(Apelido, "Zé d");
        Key(FormKey::Enter);
        EXPECT_EQ(Find(Codigo).Text(), "12");
    });
}

} // namespace

} // namespace kova::agenda
