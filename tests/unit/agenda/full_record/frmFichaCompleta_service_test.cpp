// The service: type, lookup, and the times that follow from it.

#include "tests/unit/agenda/full_record/frmFichaCompleta_fixture.hpp"

namespace kova::agenda {

namespace {

using toolkit::FormKey;

const std::string Servicos = "KOVA_N_Servicos.clsServicos";
const char* const Codigo = "kvfCodigoDoServico";
const char* const Nome = "kvfNomeDoServico";

class FichaCompletaService : public FichaCompletaTest {
protected:
    FichaCompletaService() { Prepare(); }

    static std::vector<Value> Row(Double code, const char* name, const char* time = "01:30", Long type = 4)
    {
        return {code, Text(name), "(descrição)", Double{10}, Double{5}, type, Text(time)};
    }
    void AnswerServices(std::vector<std::vector<Value>> rows)
    {
        script.Answer(Servicos + ".Selecionar",
                      {.records = {{"Codigo", "Nome", "Descricao", "ValorDeVenda", "Custo",
                                    "NumeroDoTipoDeServico", "TempoDeExecucao"},
                                   std::move(rows)}});
    }
    void ChooseType(const char* type) { EXPECT_EQ(user.Choose(Form, "kvcmbTiposDeServicos", type), ""); }
    Strings ServiceTexts() const
    {
        return {ficha->kvcmbTiposDeServicos.Text(), ficha->kvfCodigoDoServico.Text(),
                ficha->kvfNomeDoServico.Text(), ficha->kvtxtTempoDoServico.Text()};
    }
    void FindBath()
    {
        AnswerServices({Row(8, "Banho")});
        Search(Codigo, "8");
    }
    std::string End() const { return ficha->kvdtpDataFinal.Text() + " " + ficha->kvtimHoraFinal.Text(); }
    /// The user passes through the start time.
    void Start(const char* date, const char* time, const char* duration)
    {
        ficha->kvdtpDataInicial.Text(date);
        ficha->kvtxtTempoDoServico.Text(duration);
        EXPECT_EQ(user.Focus(Form, "kvtimHoraInicial"), "");
        ficha->kvtimHoraInicial.Text(time);
        EXPECT_EQ(user.Focus(Form, "kvtxtObservacaoDoServico"), "");
    }
    /// Every field below the type holds something.
    void FillAll()
    {
        for (KVFind* find : {&ficha->kvfCodigoDoServico, &ficha->kvfNomeDoServico}) {
            find->Text("cheio");
            find->Status(1);
        }
        ficha->kvdtpDataInicial.Text("21/11/2026");
        ficha->kvtimHoraInicial.Text("08:00");
        ficha->kvtxtTempoDoServico.Text("01:00");
        ficha->kvdtpDataFinal.Text("21/11/2026");
        ficha->kvtimHoraFinal.Text("09:00");
        ficha->kvtxtObservacaoDoServico.Text("cheio");
    }
};

TEST_F(FichaCompletaService, AnotherTypeEmptiesTheServiceButNotTheStartDate)
{
    Add([this] {
        FillAll();
        const std::initializer_list<Widget*> lower{&ficha->kvcmbAnimal,
                                                   &ficha->kvcmbTiposDeServicos,
                                                   &ficha->kvfCodigoDoServico,
                                                   &ficha->kvfNomeDoServico,
                                                   &ficha->kvdtpDataInicial,
                                                   &ficha->kvtimHoraInicial,
                                                   &ficha->kvdtpDataFinal,
                                                   &ficha->kvtimHoraFinal,
                                                   &ficha->kvcmbFuncionarios,
                                                   &ficha->kvcmbReagendar,
                                                   &ficha->kvtxtObservacaoDoServico,
                                                   &ficha->kvcmbBuscar,
                                                   &ficha->kvcmbLevar,
                                                   &ficha->kvcmbSituacao};
        for (Widget* widget : lower)
            widget->Enabled(false);
        ficha->kvcmbTiposDeServicos.ListIndex(3);
        EXPECT_EQ(ServiceTexts(), (Strings{"Banho e tosa", "", "", ""}));
        EXPECT_EQ(ficha->kvfCodigoDoServico.Status(), 0);
        EXPECT_EQ(ficha->kvfNomeDoServico.Status(), 0);
        EXPECT_EQ(ficha->kvdtpDataInicial.Text() + " " + ficha->kvtimHoraInicial.Text(), "21/11/2026 __:__");
        EXPECT_EQ(End(), "__/__/____ __:__");
        EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), "");
        for (Widget* widget : lower)
            EXPECT_TRUE(widget->Enabled()) << widget->Name();
    });
}

TEST_F(FichaCompletaService, AGuardedChangeOfTheTypeEmptiesNothing)
{
    Add([this] {
        FillAll();
        ficha->Estado.IgnorarEventoDeCampo = true;
        ficha->kvcmbTiposDeServicos.ListIndex(3);
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        EXPECT_EQ(ServiceTexts(), (Strings{"Banho e tosa", "cheio", "cheio", "01:00"}));
    });
}

TEST_F(FichaCompletaService, IsSearchedInItsTypeByCodeOrName)
{
    Add([this] {
        ChooseType("Banho e tosa");
        AnswerServices({Row(8, "Banho")});
        Search(Codigo, "8");
        AnswerServices({Row(8, "Banho")});
        Press(Nome); // empties what was found
        Search(Nome, " Ban ");
        const std::string start = "call " + Servicos + R"(.Selecionar(Long 2, Integer 0, Long 1, Text "", )";
        EXPECT_EQ(Lines("call " + Servicos),
                  (Strings{start + R"(Integer& 4, Text& "", Double& 8) -> Integer 0)",
                           start + R"(Integer& 4, Text& "Ban", Double& 0) -> Integer 0)"}));
        EXPECT_TRUE(Lines("set " + Servicos).empty()) << "this class takes no user";
    });
}

TEST_F(FichaCompletaService, FoundShowsItsDurationAndLeadsToTheStartTime)
{
    Add([this] {
        ChooseType("Banho e tosa");
        AnswerServices({Row(8, "Banho", "1:30:00")});
        Search(Nome, "Ban");
        EXPECT_EQ(ServiceTexts(), (Strings{"Banho e tosa", "8", "Banho", "01:30"}));
        EXPECT_EQ(ficha->kvfCodigoDoServico.Status(), 0);
        EXPECT_EQ(ficha->kvfNomeDoServico.Status(), 0);
        EXPECT_EQ(Focused(), "kvtimHoraInicial");
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo) << "the filling has spent the guard";
        EXPECT_EQ(Logged("pause"), Strings{"pause 1"});
    });
}

TEST_F(FichaCompletaService, TheTypeFollowsWhereAllTypesWereSearched)
{
    Add([this] {
        AnswerServices({Row(8, "Banho")});
        Search(Codigo, "8");
        EXPECT_EQ(ServiceTexts(), (Strings{"Banho e tosa", "8", "Banho", "01:30"}));
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        EXPECT_NE(Lines("call " + Servicos)[0].find("Integer& 0, "), std::string::npos);
    });
}

TEST_F(FichaCompletaService, AChosenTypeIsNotChangedByTheService)
{
    Add([this] {
        ChooseType("Consulta");
        FindBath();
        EXPECT_EQ(ServiceTexts(), (Strings{"Consulta", "8", "Banho", "01:30"}));
        ChooseType("(Todos)");
        EXPECT_EQ(ServiceTexts()[1], "") << "another type than the service's empties it";
        AnswerServices({Row(9, "Raio X", "00:20", 77)});
        Search(Codigo, "9");
        EXPECT_EQ(ServiceTexts(), (Strings{"(Todos)", "9", "Raio X", "00:20"})) << "no such type";
    });
}

TEST_F(FichaCompletaService, WithAChosenTypeItsOwnTypeIsNotRead)
{
    Add([this] {
        ChooseType("Consulta");
        script.Answer(Servicos + ".Selecionar",
                      {.records = {{"Codigo", "Nome", "TempoDeExecucao"}, {{Double{8}, "Banho", "01:30"}}}});
        Search(Codigo, "8");
        EXPECT_EQ(ServiceTexts(), (Strings{"Consulta", "8", "Banho", "01:30"}));
        EXPECT_TRUE(Reports().empty());
        EXPECT_EQ(Focused(), "kvtimHoraInicial");
    });
}

TEST_F(FichaCompletaService, NeedsThreeCharactersButForItsCode)
{
    Add([this] {
        Answer();
        Search(Nome, "Ba");
        EXPECT_EQ(Boxes(),
                  Strings{Box("information", "Informe 3 caracteres ou mais para iniciar a pesquisa.")});
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Ba");
        EXPECT_TRUE(Lines("call " + Servicos).empty());
    });
}

TEST_F(FichaCompletaService, NeedsAType)
{
    Add([this] {
        ficha->kvcmbTiposDeServicos.ListIndex(-1);
        for (const auto& [box, text] : {std::pair{Codigo, "8"}, std::pair{Nome, "Banho"}}) {
            toolkit.ClearLog();
            Answer();
            Search(box, text);
            EXPECT_EQ(Boxes(), Strings{Box("information", "Selecione o tipo de serviço.")});
            EXPECT_EQ(Focused(), "kvcmbTiposDeServicos");
        }
        EXPECT_TRUE(Lines("call " + Servicos).empty());
    });
}

TEST_F(FichaCompletaService, NotFoundSaysByWhatAndInWhichType)
{
    Add([this] {
        ChooseType("Consulta");
        const struct {
            const char* box;
            const char* text;
            const char* message;
        } rows[]{
            {Nome, "Tosa",
             "Nenhum serviço encontrado com o nome 'Tosa' informado e com o tipo de serviço "
             "'Consulta'."},
            {Codigo, "99",
             "Nenhum produto encontrado com o código '99' informado e com o tipo de serviço "
             "'Consulta'."},
        };
        for (const auto& row : rows) {
            const bool byName = row.box == Nome;
            KVFind& other = byName ? ficha->kvfCodigoDoServico : ficha->kvfNomeDoServico;
            toolkit.ClearLog();
            Answer();
            Type(row.box, row.text);
            other.Text("resto");
            other.Enabled(false);
            Press(row.box);
            EXPECT_EQ(Boxes(), Strings{Box("information", row.message)});
            EXPECT_EQ(Logged("keys"), Strings{"keys \"+({HOME})\""});
            EXPECT_EQ(other.Text(), "");
            EXPECT_EQ(other.Status(), 2);
            EXPECT_TRUE(other.Enabled());
            EXPECT_EQ((byName ? ficha->kvfNomeDoServico : ficha->kvfCodigoDoServico).Text(), row.text);
            EXPECT_EQ(Focused(), row.box);
        }
    });
}

TEST_F(FichaCompletaService, IsClearedByAPressOnTheBoxThatShowsIt)
{
    Add([this] {
        ChooseType("Banho e tosa");
        for (const char* box : {Codigo, Nome}) {
            FindBath();
            Press(box);
            EXPECT_EQ(ServiceTexts(), (Strings{"Banho e tosa", "", "", "01:30"}));
            EXPECT_EQ(Focused(), box);
        }
    });
}

TEST_F(FichaCompletaService, TypingInOneBoxBlanksTheOther)
{
    Add([this] {
        ChooseType("Banho e tosa");
        FindBath();
        Type(Nome, "y");
        EXPECT_EQ(ServiceTexts()[1], "");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Status(), 0);
        FindBath();
        Type(Codigo, "7");
        EXPECT_EQ(ServiceTexts()[2], "");
    });
}

TEST_F(FichaCompletaService, IsPickedWhereSeveralAreFound)
{
    Add([this] {
        FillAll();
        AnswerServices({Row(8, "Banho"), Row(9, "Banho e hidratação", "02:00")});
        Inside([this] {
            const auto& types = dynamic_cast<KVComboBox&>(
                toolkit.FindForm("frmPesquisaDeServicos")->Control("kvcmbTiposDeServicos"));
            ASSERT_EQ(types.ListCount(), 4);
            EXPECT_EQ(types.List(3), "Banho e tosa");
            EXPECT_EQ(types.ItemData(3), 4);
            EXPECT_EQ(types.ListIndex(), 0);
            EXPECT_FALSE(Principal.IgnorarClickDoTipoNaPesquisa) << "used up by the write";
            EXPECT_EQ(user.Select("frmPesquisaDeServicos", "msfgGrade", 2), "");
        });
        Search(Nome, "Banho");
        EXPECT_EQ(ServiceTexts(), (Strings{"Banho e tosa", "9", "Banho e hidratação", "02:00"}));
        EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), "cheio") << "moving the combo emptied nothing";
        EXPECT_EQ(Focused(), "kvtimHoraInicial");
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        EXPECT_EQ(toolkit.FindForm("frmPesquisaDeServicos"), nullptr);
        EXPECT_EQ(Logged("repaint"), Strings{"repaint frmFichaCompleta"});
        EXPECT_EQ(Lines("call " + Servicos).size(), 1U);
    });
}

TEST_F(FichaCompletaService, IsNotChosenWhereThePickerIsClosed)
{
    Add([this] {
        ChooseType("Banho e tosa");
        for (const bool byButton : {true, false}) {
            AnswerServices({Row(8, "Banho"), Row(9, "Banho e hidratação")});
            Inside([this, byButton] {
                EXPECT_EQ(byButton ? user.Click("frmPesquisaDeServicos", "kvcmdFechar")
                                   : user.CloseForm("frmPesquisaDeServicos"),
                          "");
            });
            Search(Nome, "Banho");
            EXPECT_EQ(ServiceTexts(), (Strings{"Banho e tosa", "", "Banho", ""}));
            EXPECT_EQ(Focused(), Nome);
            EXPECT_EQ(toolkit.FindForm("frmPesquisaDeServicos"), nullptr);
        }
    });
}

TEST_F(FichaCompletaService, ABusinessFailureIsReportedAndCountsAsNoHit)
{
    Add([this] {
        ChooseType("Banho e tosa");
        AnswerFailure(Servicos + ".Selecionar");
        Search(Codigo, "8");
        EXPECT_EQ(Reports(), Strings{ReportOfFailure()});
        EXPECT_TRUE(Boxes().empty());
        EXPECT_EQ(Focused(), Codigo);
        EXPECT_FALSE(ficha->picMensagem.Visible());
    });
}

TEST_F(FichaCompletaService, EndsAfterItsDuration)
{
    Add([this] {
        const struct {
            const char* date;
            const char* time;
            const char* duration;
            const char* end;
        } rows[]{
            {"21/11/2026", "08:15", "01:30", "21/11/2026 09:45"},
            {"21/11/2026", "23:30", "01:00", "22/11/2026 00:30"},
            {"31/12/2026", "23:30", "00:30", "01/01/2027 00:00"},
            {"20/11/2026", "10:15", "00:10", "20/11/2026 10:25"},
        };
        for (const auto& row : rows) {
            Start(row.date, row.time, row.duration);
            EXPECT_EQ(End(), row.end);
        }
        EXPECT_TRUE(Boxes().empty());
    });
}

TEST_F(FichaCompletaService, WithoutADurationEndsOnItsDayAtNoTime)
{
    Add([this] {
        for (const char* duration : {"", "00:00"}) {
            ficha->kvdtpDataFinal.Text("__/__/____");
            ficha->kvtimHoraFinal.Text("07:07");
            Start("21/11/2026", "08:15", duration);
            EXPECT_EQ(End(), "21/11/2026 07:07");
        }
    });
}

TEST_F(FichaCompletaService, ComputesNoEndFromHalfAStart)
{
    Add([this] {
        for (const auto& [date, time] : {std::pair{"__/__/____", "08:00"}, std::pair{"21/11/2026", "__:__"},
                                         std::pair{"21/1_/____", "08:00"}, std::pair{"21/11/2026", "08:_"}}) {
            Start(date, time, "01:00");
            EXPECT_EQ(End(), "__/__/____ __:__");
        }
    });
}

TEST_F(FichaCompletaService, AsksAboutAStartThatHasPassed)
{
    Add([this] {
        const std::string question = "Hora inicial é menor que o hora atual. Confirma?";
        Answer(Reply::No);
        Start("20/11/2026", "10:14", "01:00");
        EXPECT_EQ(Boxes(), Strings{Box("question", question, "no")});
        EXPECT_EQ(End(), "__/__/____ __:__");
        EXPECT_EQ(Focused(), "kvtimHoraInicial");

        Answer(Reply::Yes);
        EXPECT_EQ(user.Focus(Form, "kvtxtObservacaoDoServico"), "");
        EXPECT_EQ(End(), "20/11/2026 11:14");
        EXPECT_EQ(Focused(), "kvtxtObservacaoDoServico");
    });
}

TEST_F(FichaCompletaService, ABookingTakesOneKeyForEachFieldBesidesItsCharacters)
{
    Add([this] {
        EXPECT_EQ(Focused(), "kvfCodigoDoCliente");
        AnswerCustomers({Customer(12, "Zé")});
        Type("kvfCodigoDoCliente", "12");
        Key(FormKey::Enter);
        ASSERT_EQ(Focused(), "kvcmbTiposDeServicos");
        ChooseType("(Todos)");
        Key(FormKey::Tab);
        ASSERT_EQ(Focused(), Codigo);
        AnswerServices({Row(8, "Banho", "00:30")});
        Type(Codigo, "8");
        Key(FormKey::Enter);
        ASSERT_EQ(Focused(), "kvtimHoraInicial");
        Type("kvtimHoraInicial", "1430");
        Strings passed;
        for (int field = 0; field < 9; ++field) {
            Key(FormKey::Enter);
            passed.push_back(Focused());
        }
        EXPECT_EQ(passed,
                  (Strings{"kvdtpDataFinal", "kvtimHoraFinal", "kvcmbFuncionarios",
                           "kvtxtObservacaoDoServico", "kvcmbReagendar", "kvcmbBuscar", "kvcmbLevar",
                           "kvcmdSalvarFecharConfirmar", "kvcmdSalvarFecharConfirmar"}));
    });
}

} // namespace

} // namespace kova::agenda
