// The service of the simplified record: its type, the lookup by code or name, and when it ends.

#include "tests/unit/agenda/simplified_record/frmFichaSimplificada_fixture.hpp"

namespace kova::agenda {

namespace {

const char* const Picker = "frmPesquisaDeServicos";

class TheServiceOfTheSimplifiedForm : public FichaSimplificadaTest {
protected:
    /// The form open for adding, on type "Banho e tosa" unless told otherwise.
    void Adding(const std::function<void()>& acts, Integer type = 3)
    {
        Prepare();
        InForm(1, [&] {
            ficha->kvcmbTiposDeServicos.ListIndex(type);
            acts();
        });
    }
    void Search(const char* box, const char* text)
    {
        EXPECT_EQ(user.Type(Form, box, text), "");
        EXPECT_EQ(user.Press(Form, box), "");
    }
    Strings Calls() const { return Lines("call " + Servicos); }
};

TEST_F(TheServiceOfTheSimplifiedForm, IsResetByAnotherType)
{
    Prepare();
    InForm(3, [&] {
        ficha->kvdtpDataInicial.Text("01/12/2026");
        ficha->kvcmbFuncionarios.Enabled(false);
        EXPECT_EQ(user.Choose(Form, "kvcmbTiposDeServicos", "Consulta"), "");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "");
        EXPECT_EQ(ficha->kvfNomeDoServico.Status(), find_status::Found);
        EXPECT_EQ(ficha->kvfCodigoDoServico.Status(), find_status::Found);
        EXPECT_EQ(ficha->kvtimHoraInicial.Text(), "__:__");
        EXPECT_EQ(ficha->kvtxtTempoDoServico.Text(), "");
        EXPECT_EQ(ficha->kvdtpDataFinal.Text(), "__/__/____");
        EXPECT_EQ(ficha->kvtimHoraFinal.Text(), "__:__");
        EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), "");
        EXPECT_EQ(ficha->kvdtpDataInicial.Text(), "20/11/2026") << "back to the day of the list";
        EXPECT_TRUE(ficha->kvcmbFuncionarios.Enabled());
        EXPECT_EQ(ficha->kvcmbFuncionarios.Text(), "Ana") << "the employee stays";
    });
}

TEST_F(TheServiceOfTheSimplifiedForm, KeepsWhatItHasWhileTheTypesClickIsSwallowed)
{
    Prepare();
    InForm(3, [&] {
        ficha->Estado.IgnorarEventoDeCampo = true;
        user.Choose(Form, "kvcmbTiposDeServicos", "Consulta");
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Banho");
        EXPECT_EQ(ficha->kvtimHoraInicial.Text(), "08:00");
    });
}

TEST_F(TheServiceOfTheSimplifiedForm, IsSwitchedAsAWhole)
{
    Prepare();
    const auto fields = [&] {
        return std::vector<const Widget*>{
            &ficha->kvfCodigoDoServico, &ficha->kvfNomeDoServico,         &ficha->kvdtpDataInicial,
            &ficha->kvtimHoraInicial,   &ficha->kvdtpDataFinal,           &ficha->kvtimHoraFinal,
            &ficha->kvcmbFuncionarios,  &ficha->kvtxtObservacaoDoServico, &ficha->kvcmbSituacao};
    };
    ficha->HabilitarDesabilitarCampos(false);
    for (const Widget* field : fields())
        EXPECT_FALSE(field->Enabled()) << field->Name();
    EXPECT_TRUE(ficha->kvcmbTiposDeServicos.Enabled());
    EXPECT_TRUE(ficha->kvtxtNomeDoAnimal.Enabled());
    ficha->HabilitarDesabilitarCampos(true);
    for (const Widget* field : fields())
        EXPECT_TRUE(field->Enabled()) << field->Name();
}

TEST_F(TheServiceOfTheSimplifiedForm, IsAskedForByName)
{
    ScriptServices({{"Banho completo", 8}});
    Adding([&] { Search("kvfNomeDoServico", " banho "); });
    EXPECT_EQ(Calls(),
              (Strings{"call " + Servicos
                       + R"((Long 2, Integer 0, Long 1, Text "", Integer& 4, Text& "banho", Double& 0) )"
                         "-> Integer 0"}));
    EXPECT_TRUE(Lines("set KOVA_N_Servicos").empty()) << "the user is not told to this class";
    EXPECT_EQ(Logged("pause 1").size(), 1U);
    EXPECT_TRUE(ficha->Formulario->Enabled());
}

TEST_F(TheServiceOfTheSimplifiedForm, IsAskedForByACodeOfOneDigit)
{
    ScriptServices({{"Banho completo", 8}});
    Adding([&] { Search("kvfCodigoDoServico", "8"); });
    EXPECT_EQ(
        Calls(),
        (Strings{"call " + Servicos
                 + R"((Long 2, Integer 0, Long 1, Text "", Integer& 4, Text& "", Double& 8) -> Integer 0)"}));
}

TEST_F(TheServiceOfTheSimplifiedForm, TakesALetterForCodeZero)
{
    ScriptServices({});
    Box();
    Adding([&] { Search("kvfCodigoDoServico", "x"); });
    ASSERT_EQ(Calls().size(), 1U);
    EXPECT_NE(Calls()[0].find("Double& 0)"), std::string::npos);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(TheServiceOfTheSimplifiedForm, IsShownWhereItIsTheOnlyOne)
{
    ScriptServices({{"Banho completo", 8}});
    Adding([&] {
        Search("kvfNomeDoServico", "banho");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Banho completo");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "8");
        EXPECT_EQ(ficha->kvfNomeDoServico.Status(), find_status::Found);
        EXPECT_EQ(ficha->kvfCodigoDoServico.Status(), find_status::Found);
        EXPECT_EQ(ficha->kvtxtTempoDoServico.Text(), "01:30");
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo) << "no guard is left on this form";
        EXPECT_EQ(ficha->kvcmbTiposDeServicos.ListIndex(), 3);
    });
    EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvtimHoraInicial"}));
}

TEST_F(TheServiceOfTheSimplifiedForm, BringsItsTypeWhereAllWereSearched)
{
    ScriptServices({{"Banho completo", 8}});
    Adding(
        [&] {
            ficha->kvtxtObservacaoDoServico.Text("fica");
            Search("kvfNomeDoServico", "banho");
            EXPECT_EQ(ficha->kvcmbTiposDeServicos.Text(), "Banho e tosa");
            EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Banho completo") << "the type's click is swallowed";
            EXPECT_EQ(ficha->kvtxtObservacaoDoServico.Text(), "fica");
            EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
        },
        0);
}

TEST_F(TheServiceOfTheSimplifiedForm, HasItsTypeReadOnlyWhereAllWereSearched)
{
    script.Always(
        Servicos,
        {.records = {{"Codigo", "Nome", "TempoDeExecucao"}, {{Double{8}, "Banho completo", "01:30"}}}});
    Adding([&] {
        Search("kvfNomeDoServico", "banho");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Banho completo");
        EXPECT_EQ(ficha->kvcmbTiposDeServicos.ListIndex(), 3);
    });
    EXPECT_TRUE(Reports().empty());
    EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvtimHoraInicial"}));
}

TEST_F(TheServiceOfTheSimplifiedForm, WantsThreeCharactersOfAName)
{
    Box();
    Adding([&] {
        ficha->kvfCodigoDoServico.Text("8");
        Search("kvfNomeDoServico", "Zé");
        EXPECT_EQ(Boxes(), (Strings{Information("Informe 3 caracteres ou mais para iniciar a pesquisa.")}));
        EXPECT_TRUE(Calls().empty());
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Zé");
        EXPECT_TRUE(Logged("focus").empty());
    });
}

TEST_F(TheServiceOfTheSimplifiedForm, CountsCharactersAndNotBytes)
{
    ScriptServices({{"Chá", 8}});
    Adding([&] { Search("kvfNomeDoServico", "Chá"); });
    EXPECT_EQ(Calls().size(), 1U);
}

TEST_F(TheServiceOfTheSimplifiedForm, WantsATypeBeforeItIsSearched)
{
    Box();
    Adding([&] {
        ficha->kvcmbTiposDeServicos.Clear();
        Search("kvfNomeDoServico", "banho");
        EXPECT_EQ(Boxes(), (Strings{Information("Selecione o tipo de serviço.")}));
        EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvcmbTiposDeServicos"}));
        EXPECT_TRUE(Calls().empty());
    });
}

TEST_F(TheServiceOfTheSimplifiedForm, IsMissedByItsName)
{
    ScriptServices({});
    Box();
    Adding([&] {
        ficha->kvfCodigoDoServico.Text("8");
        Search("kvfNomeDoServico", "zebra");
        EXPECT_EQ(
            Boxes(),
            (Strings{Information("Nenhum serviço encontrado com o nome 'zebra' informado e com o tipo de "
                                 "serviço 'Banho e tosa'.")}));
        EXPECT_EQ(Logged("keys"), (Strings{"keys \"+({HOME})\""}));
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "zebra");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Status(), find_status::Clear);
        EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvfNomeDoServico"}));
    });
}

TEST_F(TheServiceOfTheSimplifiedForm, IsMissedByItsCodeAsAProduct)
{
    ScriptServices({});
    Box();
    Adding([&] {
        Search("kvfCodigoDoServico", "77");
        EXPECT_EQ(
            Boxes(),
            (Strings{Information("Nenhum produto encontrado com o código '77' informado e com o tipo de "
                                 "serviço 'Banho e tosa'.")}));
        EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "77");
        EXPECT_EQ(ficha->kvfNomeDoServico.Status(), find_status::Clear);
    });
}

TEST_F(TheServiceOfTheSimplifiedForm, PassesOnAFailedSearchAndWaitsForAnother)
{
    AnswerFailure(Servicos);
    Adding([&] {
        Search("kvfNomeDoServico", "banho");
        EXPECT_EQ(Reports(), (Strings{ReportOfFailure()}));
        EXPECT_FALSE(ficha->picMensagem.Visible());
        EXPECT_TRUE(ficha->Formulario->Enabled());
        EXPECT_TRUE(Lines("create KOVA_A_EfeitosDeTela").empty()) << "the dimming stays as it is";
        EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvfNomeDoServico"}));
    });
}

TEST_F(TheServiceOfTheSimplifiedForm, ReportsAMissingComponentAndLeavesItsPlate)
{
    script.FailCreate("KOVA_N_Servicos.clsServicos", Failure(429, "sem serviços"));
    Adding([&] { Search("kvfNomeDoServico", "banho"); });
    ExpectReport("429", "frmFichaSimplificada, PesquisarServico, Ponto: 1\"");
    EXPECT_TRUE(ficha->picMensagem.Visible()) << "nothing undoes what was done before";
}

TEST_F(TheServiceOfTheSimplifiedForm, IsForgottenByAPressOnAFoundRecord)
{
    ScriptServices({{"Banho completo", 8}});
    Adding([&] {
        Search("kvfNomeDoServico", "banho");
        Forget();
        EXPECT_EQ(user.Press(Form, "kvfCodigoDoServico"), "");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "");
        EXPECT_EQ(ficha->kvfNomeDoServico.Status(), find_status::Clear);
        EXPECT_TRUE(Calls().empty());
        EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvfCodigoDoServico"}));
    });
}

TEST_F(TheServiceOfTheSimplifiedForm, BlanksTheOtherBoxWhileTheUserTypes)
{
    Adding([&] {
        ficha->kvfNomeDoServico.Text("Banho");
        user.Type(Form, "kvfCodigoDoServico", "8");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "");
        EXPECT_EQ(ficha->kvfNomeDoServico.Status(), find_status::Found) << "its status stays";
        user.Type(Form, "kvfNomeDoServico", "B");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "");
    });
    EXPECT_TRUE(Calls().empty());
}

class ChoosingAmongServices : public TheServiceOfTheSimplifiedForm {
protected:
    ChoosingAmongServices() { ScriptServices({{"Banho", 8}, {"Banho e tosa", 9}}); }
};

TEST_F(ChoosingAmongServices, OpensThePickerWithTheRowsAndTheTypesOfTheForm)
{
    Adding([&] {
        toolkit.Queue().QueueAction([&] {
            const auto& dialog = *toolkit.FindForm(Picker);
            const auto& types = dynamic_cast<KVComboBox&>(dialog.Control("kvcmbTiposDeServicos"));
            EXPECT_EQ(types.ListCount(), 4);
            EXPECT_EQ(types.List(0), "(Todos)");
            EXPECT_EQ(types.ItemData(3), 4);
            EXPECT_EQ(types.ListIndex(), 3);
            EXPECT_TRUE(dialog.Control("kvfndCodigoOuNome").Enabled());
            const auto& grid = dynamic_cast<MSFlexGrid&>(dialog.Control("msfgGrade"));
            EXPECT_EQ(grid.Rows(), 3);
            EXPECT_FALSE(Principal.IgnorarClickDoTipoNaPesquisa);
            EXPECT_EQ(user.Select(Picker, "msfgGrade", 2), "");
        });
        Search("kvfNomeDoServico", "banho");
        EXPECT_EQ(ficha->kvcmbTiposDeServicos.ListIndex(), 3);
    });
    EXPECT_EQ(Logged(""),
              (Strings{"pause 1", "show frmPesquisaDeServicos modal", "hide frmPesquisaDeServicos",
                       "unload frmPesquisaDeServicos", "focus frmFichaSimplificada.kvtimHoraInicial",
                       "hide frmFichaSimplificada", "repaint frmLista"}));
    EXPECT_TRUE(Lines("create KOVA_N_TipoDeServ").empty()) << "the form brings the types";
}

TEST_F(ChoosingAmongServices, ShowsTheChosenOne)
{
    Adding([&] {
        toolkit.Queue().QueueAction([&] { user.Select(Picker, "msfgGrade", 2); });
        Search("kvfNomeDoServico", "banho");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Text(), "9");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Banho e tosa");
        EXPECT_EQ(ficha->kvtxtTempoDoServico.Text(), "01:30:00") << "the column as it stands";
        EXPECT_EQ(ficha->kvfCodigoDoServico.Status(), find_status::Found);
        EXPECT_EQ(ficha->kvfNomeDoServico.Status(), find_status::Found);
        EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo);
    });
}

TEST_F(ChoosingAmongServices, TakesTheTypeOfTheChosenOneWhereAllWereSearched)
{
    Adding(
        [&] {
            toolkit.Queue().QueueAction([&] { user.Select(Picker, "msfgGrade", 1); });
            Search("kvfNomeDoServico", "banho");
            EXPECT_EQ(ficha->kvcmbTiposDeServicos.ListIndex(), 3);
            EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "Banho");
        },
        0);
}

TEST_F(ChoosingAmongServices, KeepsTheTextWhereThePickerIsClosed)
{
    Adding([&] {
        toolkit.Queue().QueueAction([&] { user.Click(Picker, "kvcmdFechar"); });
        Search("kvfNomeDoServico", "banho");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "banho");
        EXPECT_EQ(ficha->kvfCodigoDoServico.Status(), find_status::Clear);
        EXPECT_EQ(ficha->kvtxtTempoDoServico.Text(), "");
    });
    EXPECT_EQ(Logged("unload"), (Strings{"unload frmPesquisaDeServicos"}));
    EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvfNomeDoServico"}));
}

TEST_F(ChoosingAmongServices, TakesTheClosedWindowForNoChoice)
{
    Adding([&] {
        toolkit.Queue().QueueAction([&] { EXPECT_EQ(user.CloseForm(Picker), ""); });
        Search("kvfNomeDoServico", "banho");
        EXPECT_EQ(ficha->kvfNomeDoServico.Text(), "banho");
    });
    EXPECT_TRUE(Reports().empty());
}

class TheEndOfTheService : public FichaSimplificadaTest {
protected:
    /// The user leaves the start time with these values in the form.
    void Leave(const char* date, const char* time, const char* duration)
    {
        Prepare();
        InForm(1, [&] {
            ficha->kvdtpDataInicial.Text(date);
            ficha->kvtimHoraInicial.Text(time);
            ficha->kvtxtTempoDoServico.Text(duration);
            ficha->kvtimHoraFinal.Text("17:00");
            user.Focus(Form, "kvtimHoraInicial");
            user.Focus(Form, "kvtxtObservacaoDoServico");
            end = ficha->kvdtpDataFinal.Text() + " " + ficha->kvtimHoraFinal.Text();
        });
    }

    Text end;
};

TEST_F(TheEndOfTheService, IsTheStartAndTheDuration)
{
    Leave("20/11/2026", "14:10", "01:30");
    EXPECT_EQ(end, "20/11/2026 15:40");
}

TEST_F(TheEndOfTheService, LiesOnTheNextDayPastMidnight)
{
    Leave("31/12/2026", "23:30", "01:00");
    EXPECT_EQ(end, "01/01/2027 00:30");
}

TEST_F(TheEndOfTheService, IsTheSameDayWithoutADuration)
{
    Leave("20/11/2026", "14:10", "");
    EXPECT_EQ(end, "20/11/2026 17:00") << "the end time stays";
}

TEST_F(TheEndOfTheService, IsNotWorkedOutFromAHalfTypedStart)
{
    Leave("20/11/2026", "14:__", "01:00");
    EXPECT_EQ(end, "__/__/____ 17:00");
}

TEST_F(TheEndOfTheService, AsksAboutATimeThatHasPassed)
{
    Box(Reply::No);
    Leave("20/11/2026", "10:14", "01:00");
    EXPECT_EQ(end, "__/__/____ 17:00");
    EXPECT_EQ(Boxes(),
              (Strings{"box question \"Kova\" \"Hora inicial é menor que o hora atual. Confirma?\" -> no"}));
    EXPECT_EQ(Logged("focus"), (Strings{"focus frmFichaSimplificada.kvtimHoraInicial"}));
}

TEST_F(TheEndOfTheService, IsWorkedOutWhereThePassedTimeIsConfirmed)
{
    Box(Reply::Yes);
    Leave("20/11/2026", "10:14", "01:00");
    EXPECT_EQ(end, "20/11/2026 11:14");
}

TEST_F(TheEndOfTheService, TakesThePresentMinuteForNotPassed)
{
    Leave("20/11/2026", "10:15", "01:00");
    EXPECT_EQ(end, "20/11/2026 11:15");
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(TheEndOfTheService, ReportsADurationThatIsNoTime)
{
    Leave("20/11/2026", "14:00", "90 min");
    ExpectReport("13", "frmFichaSimplificada, kvtimHoraInicial_LostFocus, Ponto: 1\"");
}

} // namespace

} // namespace kova::agenda
