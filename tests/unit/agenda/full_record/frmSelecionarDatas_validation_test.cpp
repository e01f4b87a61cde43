// The check of the twelve rows: its messages, their order, where the focus goes.

#include "tests/unit/agenda/full_record/frmSelecionarDatas_fixture.hpp"

namespace kova::agenda {

namespace {

using Strings = std::vector<std::string>;

constexpr const char* Sunday = "22/11/2026";
constexpr const char* Monday = "23/11/2026";
constexpr const char* PastSunday = "15/11/2026";
const std::string Feriados = "KOVA_N_Feriados.clsFeriados.Selecionar";
const std::string NextWorkingDay = R"(box question "Kova" "Gostaria de reagendar para o próximo dia útil?")";

std::string Question(const std::string& text, const char* answer)
{
    return "box question \"Kova\" \"" + text + "\" -> " + answer;
}

std::string Plain(const std::string& text) { return R"(box plain "" ")" + text + "\" -> ok"; }

Strings FocusOn(const std::string& control) { return {"focus frmSelecionarDatas." + control}; }

class CheckingDates : public DateSelectionTest {
protected:
    void ItIsAHoliday() { script.Answer(Feriados, {.records = {{"Nome"}, {{"Consciência Negra"}}}}); }
};

TEST_F(CheckingDates, AsksForADateWhereThereIsNone)
{
    Row(3, "", "09:00");
    Answers({Reply::Ok});
    EXPECT_FALSE(Save());
    EXPECT_EQ(Boxes(), (Strings{Plain("Informe uma data para o agendamento.")}));
    EXPECT_EQ(focused, FocusOn("kvdtpDataInicial(0)"));
    EXPECT_FALSE(datas->OperacaoConcluida);
    EXPECT_EQ(datas->ListaDasDatasEHorasSelecionadas, nullptr);
    EXPECT_TRUE(lines.empty()) << "no holiday is looked up for a row without a date";
}

TEST_F(CheckingDates, SkipsRowsWithoutADate)
{
    Row(7, Monday, "09:00");
    EXPECT_TRUE(Save());
    EXPECT_TRUE(Boxes().empty());
    EXPECT_EQ(LookedUp().size(), 1U);
}

TEST_F(CheckingDates, RefusesWhatIsNoDate)
{
    for (const char* text : {"30/02/2027", "2_/__/____", "31/04/2027"}) {
        Row(2, text, "__:__");
        Answers({Reply::Ok});
        EXPECT_FALSE(Save());
        EXPECT_EQ(Boxes(), (Strings{Plain("Informe uma data inicial 2 válida.")})) << text;
        EXPECT_EQ(focused, FocusOn("kvdtpDataInicial(1)"));
    }
}

TEST_F(CheckingDates, StopsAtADateWithoutATimeAndChecksNoLaterRow)
{
    Row(1, Sunday, "__:__");
    Row(2, "2_/__/____", "09:00");
    Answers({Reply::Ok});
    EXPECT_FALSE(Save());
    EXPECT_EQ(Boxes(), (Strings{Plain("Informe uma hora inicial 1 válida.")}));
    EXPECT_EQ(focused, FocusOn("kvtimHoraInicial(0)"));
    EXPECT_TRUE(LookedUp().empty());
}

TEST_F(CheckingDates, ConfirmsADayThatHasPassed)
{
    Row(1, "19/11/2026", "09:00");
    const std::string question = "Data inicial 1 '19/11/2026' é menor que a data atual. Confirma?";
    Answers({Reply::No});
    EXPECT_FALSE(Save());
    EXPECT_EQ(Boxes(), (Strings{Question(question, "no")}));
    EXPECT_EQ(focused, FocusOn("kvdtpDataInicial(0)"));
    EXPECT_TRUE(LookedUp().empty());

    Answers({Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_EQ(Boxes(), (Strings{Question(question, "yes")}));
}

TEST_F(CheckingDates, AsksTwoQuestionsOfAPastSunday)
{
    Row(12, PastSunday, "09:00");
    Answers({Reply::Yes, Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_EQ(
        Boxes(),
        (Strings{Question("Data inicial 12 '15/11/2026' é menor que a data atual. Confirma?", "yes"),
                 Question("Data inicial 12 '15/11/2026' é um domingo. Confirma o agendamento?", "yes")}));
    EXPECT_FALSE(datas->DomingoOuFeriado);
}

TEST_F(CheckingDates, OffersTheNextWorkingDayForASunday)
{
    Row(1, Sunday, "09:00");
    const std::string question = "Data inicial 1 '22/11/2026' é um domingo. Confirma o agendamento?";
    Answers({Reply::No, Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_EQ(Boxes(), (Strings{Question(question, "no"), NextWorkingDay + " -> yes"}));
    EXPECT_TRUE(datas->DomingoOuFeriado);

    Answers({Reply::No, Reply::No});
    EXPECT_FALSE(Save());
    EXPECT_EQ(Boxes(), (Strings{Question(question, "no"), NextWorkingDay + " -> no"}));
    EXPECT_EQ(focused, FocusOn("kvdtpDataInicial(0)"));
    EXPECT_FALSE(datas->DomingoOuFeriado) << "opening the form has cleared it";
    EXPECT_TRUE(LookedUp().empty());
}

TEST_F(CheckingDates, ConfirmsATimeOfTodayThatHasPassed)
{
    const std::string question = "Hora inicial 1 '10:14' é menor que o hora atual. Confirma?";
    Row(1, "20/11/2026", "10:14");
    Answers({Reply::No});
    EXPECT_FALSE(Save());
    EXPECT_EQ(Boxes(), (Strings{Question(question, "no")}));
    EXPECT_EQ(focused, FocusOn("kvtimHoraInicial(0)"));

    Answers({Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_EQ(Boxes(), (Strings{Question(question, "yes")}));
}

TEST_F(CheckingDates, TakesThePresentMinuteAndAnyTimeOfAnotherDay)
{
    Row(1, "20/11/2026", "10:15");
    Row(2, Monday, "08:00");
    EXPECT_TRUE(Save());
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(CheckingDates, LooksAHolidayUpByDayAndMonthUnderTheWaitPlate)
{
    Row(1, Monday, "09:00");
    bool plate = false;
    toolkit.Queue().QueueDuringPause(
        [&] { plate = datas->picMensagem.Visible() && !datas->Formulario->Enabled(); });
    EXPECT_TRUE(Save());
    EXPECT_TRUE(plate);
    EXPECT_FALSE(datas->picMensagem.Visible());
    EXPECT_TRUE(datas->Formulario->Enabled());
    const Strings lookup(lines.end() - 5, lines.end());
    EXPECT_EQ(lookup,
              (Strings{"create KOVA_N_Feriados.clsFeriados",
                       "set KOVA_N_Feriados.clsFeriados.DadosDoUsuario Object <user>",
                       "call " + Feriados + R"((Long 2, Integer 0, Long 0, Text& "23/11") -> Integer 0)",
                       "get KOVA_N_Feriados.clsFeriados.ResultadoDaSelecaoEmRecordSet -> Object <recordset>",
                       "release KOVA_N_Feriados.clsFeriados"}));
    EXPECT_EQ(Logged("pause"), (Strings{"pause 1"}));
}

TEST_F(CheckingDates, OffersTheNextWorkingDayForAHoliday)
{
    const std::string question = "Data inicial 1 '23/11/2026' é um feriado. Confirma o agendamento?";
    Row(1, Monday, "09:00");
    ItIsAHoliday();
    Answers({Reply::No, Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_EQ(Boxes(), (Strings{Question(question, "no"), NextWorkingDay + " -> yes"}));
    EXPECT_TRUE(datas->DomingoOuFeriado);

    ItIsAHoliday();
    Answers({Reply::No, Reply::No});
    EXPECT_FALSE(Save());
    EXPECT_EQ(focused, FocusOn("kvdtpDataInicial(0)"));

    ItIsAHoliday();
    Answers({Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_FALSE(datas->DomingoOuFeriado);
}

TEST_F(CheckingDates, AsksOfASundayThatIsAHolidayTwice)
{
    Row(1, Sunday, "09:00");
    ItIsAHoliday();
    Answers({Reply::No, Reply::Yes, Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_EQ(Boxes().size(), 3U);
    EXPECT_FALSE(datas->DomingoOuFeriado) << "the holiday's answer came last";
}

TEST_F(CheckingDates, KeepsOneAnswerForTheWholeTable)
{
    Row(1, Sunday, "09:00");
    Row(2, "29/11/2026", "09:00");
    Row(3, Monday, "09:00");
    Answers({Reply::Yes, Reply::No, Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_TRUE(datas->DomingoOuFeriado) << "the last Sunday counts, and a working day leaves it";

    Answers({Reply::No, Reply::Yes, Reply::Yes});
    EXPECT_TRUE(Save());
    EXPECT_FALSE(datas->DomingoOuFeriado);
}

TEST_F(CheckingDates, TakesAFailedHolidayLookupForNoHolidayAndSaysNothing)
{
    Row(1, Monday, "09:00");
    script.Answer(Feriados, {.result = Integer{1}, .members = {{"NumeroDoErro", Long{7}}}});
    EXPECT_TRUE(Save());
    EXPECT_TRUE(Boxes().empty());
    EXPECT_TRUE(Reports().empty());
    EXPECT_TRUE(Lines("get ").empty()) << "neither the rows nor the error are read";
    EXPECT_FALSE(datas->picMensagem.Visible());
    EXPECT_EQ(Lines("release KOVA_N_Feriados").size(), 1U);
}

TEST_F(CheckingDates, ReportsALookupThatBreaksAndGoesOn)
{
    Row(1, Monday, "09:00");
    script.FailCreate("KOVA_N_Feriados.clsFeriados", Failure(429, "sem feriados"));
    EXPECT_TRUE(Save());
    ASSERT_EQ(Reports().size(), 1U);
    EXPECT_NE(Reports()[0].find("KOVA_A_Agenda, frmSelecionarDatas, PesquisarFeridado, Ponto: 1"),
              std::string::npos);
}

TEST_F(CheckingDates, LooksEveryRowUpInItsOrder)
{
    for (std::size_t number = 1; number <= 12; ++number)
        Row(number, Monday, "09:00");
    Row(4, "24/12/2026", "09:00");
    EXPECT_TRUE(Save());
    ASSERT_EQ(LookedUp().size(), 12U);
    EXPECT_NE(LookedUp()[3].find(R"("24/12")"), std::string::npos);
    EXPECT_EQ(Logged("pause").size(), 12U);
}

} // namespace

} // namespace kova::agenda
