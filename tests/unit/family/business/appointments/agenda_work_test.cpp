// Opening hours, employees' hours and absences. In December 2026 the 1st is a Tuesday and the 6th a Sunday.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/business/appointments/appointment_restoration.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

constexpr int Sunday = 1, Monday = 2, Tuesday = 3, Wednesday = 4, Thursday = 5, Friday = 6, Saturday = 7;
constexpr Key Zeca = 1, Bia = 2, Everybody = 0;

class WorkRule : public BookingTest {
protected:
    void Close() { Run("delete from expediente"); }
    void Open(int weekday, const std::string& from = "00:00", const std::string& until = "24:00")
    {
        Run("insert into expediente (dia_da_semana, hora_inicial, hora_final) values ("
            + std::to_string(weekday) + ", '" + from + "', '" + until + "')");
    }
    void Works(Key employee, int weekday, const std::string& from = "00:00",
               const std::string& until = "24:00")
    {
        Run("insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial,"
            " hora_final) values ("
            + std::to_string(employee) + ", " + std::to_string(weekday) + ", '" + from + "', '" + until
            + "')");
    }
    /// From a moment to another one, "yyyy-mm-dd hh:mm".
    void Away(Key employee, const std::string& from, const std::string& until, const std::string& reason)
    {
        const auto moment = [](const std::string& text) {
            return "'" + text.substr(0, 10) + "', '" + text.substr(11) + "', ";
        };
        Run("insert into ausencia (codigo_do_funcionario, data_inicial, hora_inicial, data_final, hora_final,"
            " motivo) values ("
            + (employee == Everybody ? "null" : std::to_string(employee)) + ", " + moment(from)
            + moment(until) + "'" + reason + "')");
    }

    struct Case {
        Hours hours;
        /// Why not; "" where the booking is written.
        Text objection;
    };
    void Expect(Component& agenda, const Case& one)
    {
        SCOPED_TRACE(one.hours.startDate + " " + one.hours.startTime + " " + one.hours.endTime);
        if (!one.objection.empty()) {
            ExpectRefused(agenda, "HoraInicial", one.objection);
            return;
        }
        EXPECT_EQ(Write(agenda), 0);
        Run("delete from agendamento where numero > " + std::to_string(Stored));
    }
    /// With both kinds of records.
    void ExpectEach(const std::vector<Case>& cases)
    {
        for (const Case& one : cases) {
            Expect(*Full(one.hours), one);
            Expect(*Simplified(one.hours), one);
        }
    }
    static Text NotAtWork(const Text& date, const Text& nickname = "Bia")
    {
        return nickname + " não trabalha nesse horário em " + date + ".";
    }
    Desk Of(Key employee, Desk desk)
    {
        desk->Set("CodigoDoFuncionario", static_cast<Long>(employee));
        return desk;
    }
    static Desk Answered(Desk desk, bool move)
    {
        desk->Set("DadosValidados", true);
        desk->Set("DomingoOuFeriado", move);
        return desk;
    }
    static Desk Repeated(Desk desk, Long more)
    {
        desk->Set("QuantidadeDeReagendamentos", more);
        desk->Set("FrequenciaDeReagendamento", Integer(0));
        return desk;
    }
    static Desk WithPicked(Desk desk, const std::vector<Hours>& rows)
    {
        desk->Set("CriadaListaDasDatasEHorasSelecionadas", true);
        desk->Set("ListaDasDatasEHorasSelecionadas", Picked(rows));
        return desk;
    }
};

using Lines = std::vector<std::string>;

TEST_F(WorkRule, OfAShopThatWasNeverToldLetsEveryHourPass)
{
    ExpectEach({{On("01/12/2026", "00:00", "23:59"), ""},
                {{"01/12/2026", "23:00", "02/12/2026", "00:00"}, ""},
                {{"04/12/2026", "08:00", "08/12/2026", "18:00"}, ""},
                {{"05/12/2026", "23:00", "06/12/2026", "01:00"}, ""},
                {On("05/12/2026", "22:00", "23:00"), ""}});
}

TEST_F(WorkRule, RefusesWhatLeavesTheOpeningHoursOrCrossesABreak)
{
    Close();
    Open(Tuesday, "13:30", "18:00");
    Open(Tuesday, "08:00", "12:00");
    const Text no = NotAtWork("01/12/2026");
    ExpectEach({{On("01/12/2026", "08:00", "12:00"), ""},
                {On("01/12/2026", "13:30", "18:00"), ""},
                {On("01/12/2026", "09:00", "10:00"), ""},
                {On("01/12/2026", "07:59", "09:00"), no},
                {On("01/12/2026", "11:00", "12:01"), no},
                {On("01/12/2026", "12:00", "13:30"), no},
                {On("01/12/2026", "12:15", "13:00"), no},
                {On("01/12/2026", "13:29", "14:00"), no},
                {On("01/12/2026", "11:30", "14:00"), no},
                {On("01/12/2026", "08:00", "18:00"), no},
                {On("01/12/2026", "17:00", "18:01"), no},
                {On("01/12/2026", "06:00", "07:00"), no},
                {On("01/12/2026", "20:00", "21:00"), no}});
}

TEST_F(WorkRule, TakesHoursThatTouchOrOverlapForOne)
{
    Close();
    Open(Tuesday, "12:00", "18:00");
    Open(Tuesday, "08:00", "12:00");
    Open(Wednesday, "08:00", "13:00");
    Open(Wednesday, "09:00", "10:00");
    Open(Wednesday, "12:30", "18:00");
    ExpectEach({{On("01/12/2026", "08:00", "18:00"), ""},
                {On("02/12/2026", "08:00", "18:00"), ""},
                {On("02/12/2026", "08:00", "18:01"), NotAtWork("02/12/2026")}});
}

TEST_F(WorkRule, GoesOnOverMidnightWhereBothDaysAreOpenThen)
{
    Close();
    Open(Tuesday, "18:00", "24:00");
    Open(Wednesday, "00:00", "02:00");
    Open(Thursday, "08:00", "24:00");
    Open(Friday, "08:00", "12:00");
    ExpectEach({{{"01/12/2026", "23:00", "02/12/2026", "00:00"}, ""},
                {{"01/12/2026", "18:00", "02/12/2026", "02:00"}, ""},
                {{"01/12/2026", "17:59", "02/12/2026", "02:00"}, NotAtWork("01/12/2026")},
                {{"01/12/2026", "23:00", "02/12/2026", "02:01"}, NotAtWork("02/12/2026")},
                {{"03/12/2026", "23:00", "04/12/2026", "00:00"}, ""},
                {{"03/12/2026", "23:00", "04/12/2026", "00:01"}, NotAtWork("04/12/2026")},
                {On("02/12/2026", "00:00", "02:00"), ""},
                {{"01/12/2026", "20:00", "03/12/2026", "09:00"}, NotAtWork("02/12/2026")}});
}

TEST_F(WorkRule, LeavesTheHoursOfADayOnWhichTheShopIsClosedToTheUser)
{
    Run("update expediente set hora_inicial = '08:00', hora_final = '18:00'");
    const auto desk = Full(On("06/12/2026"));
    ExpectRefused(*desk, "DomingoOuFeriado", "A data 06/12/2026 é um domingo.");
    EXPECT_EQ(Write(*Answered(Full(On("06/12/2026")), false)), 0);
    EXPECT_EQ(Write(*Simplified(On("06/12/2026", "06:00", "07:00"))), 0);
    ExpectRefused(*Simplified({"06/12/2026", "20:00", "07/12/2026", "08:00"}), "HoraInicial",
                  NotAtWork("07/12/2026"));
}

TEST_F(WorkRule, KnowsAnEmployeesOwnHours)
{
    Works(Bia, Tuesday, "08:00", "12:00");
    Works(Bia, Tuesday, "14:00", "16:00");
    ExpectEach({{On("01/12/2026", "08:00", "12:00"), ""},
                {On("01/12/2026", "14:30", "15:30"), ""},
                {On("01/12/2026", "11:30", "12:30"), NotAtWork("01/12/2026")},
                {On("01/12/2026", "11:00", "15:00"), NotAtWork("01/12/2026")},
                {On("02/12/2026", "09:00", "10:00"), NotAtWork("02/12/2026")},
                {On("08/12/2026", "09:00", "10:00"), ""}});
    EXPECT_EQ(Write(*Of(Zeca, Full(On("02/12/2026")))), 0);
}

TEST_F(WorkRule, AsksForBothTheShopsHoursAndTheEmployees)
{
    Close();
    Open(Tuesday, "10:00", "18:00");
    Works(Bia, Tuesday, "08:00", "12:00");
    ExpectEach({{On("01/12/2026", "10:00", "12:00"), ""},
                {On("01/12/2026", "09:00", "10:00"), NotAtWork("01/12/2026")},
                {On("01/12/2026", "12:00", "13:00"), NotAtWork("01/12/2026")}});
}

TEST_F(WorkRule, HoldsAnEmployeeToItsOwnHoursWhereTheShopIsClosed)
{
    Works(Bia, Tuesday);
    Works(Zeca, Sunday, "08:00", "12:00");
    ExpectRefused(*Full(On("06/12/2026")), "HoraInicial", NotAtWork("06/12/2026"));
    ExpectRefused(*Answered(Full(On("06/12/2026")), false), "HoraInicial", NotAtWork("06/12/2026"));
    EXPECT_EQ(Write(*Of(Zeca, Answered(Full(On("06/12/2026")), false))), 0);
    ExpectRefused(*Of(Zeca, Answered(Full(On("06/12/2026", "11:30", "12:30")), false)), "HoraInicial",
                  NotAtWork("06/12/2026", "Zeca"));
}

TEST_F(WorkRule, RefusesWhatAnAbsenceMeetsAndLetsPassWhatOnlyTouchesIt)
{
    Away(Bia, "2026-12-01 10:00", "2026-12-01 11:00", "Dentista");
    Away(Bia, "2026-12-02 00:00", "2026-12-03 24:00", "Férias");
    const Text dentist = "Bia está ausente em 01/12/2026 (Dentista).";
    ExpectEach({{On("01/12/2026", "09:00", "10:00"), ""},
                {On("01/12/2026", "11:00", "12:00"), ""},
                {On("01/12/2026", "10:00", "11:00"), dentist},
                {On("01/12/2026", "10:15", "10:30"), dentist},
                {On("01/12/2026", "09:00", "10:01"), dentist},
                {On("01/12/2026", "10:59", "12:00"), dentist},
                {On("01/12/2026", "08:00", "18:00"), dentist},
                {{"01/12/2026", "23:00", "02/12/2026", "00:00"}, ""},
                {{"01/12/2026", "23:00", "02/12/2026", "00:01"}, "Bia está ausente em 02/12/2026 (Férias)."},
                {{"03/12/2026", "23:00", "04/12/2026", "00:00"}, "Bia está ausente em 03/12/2026 (Férias)."},
                {On("04/12/2026", "00:00", "01:00"), ""},
                {{"30/11/2026", "08:00", "05/12/2026", "18:00"}, dentist}});
    EXPECT_EQ(Write(*Of(Zeca, Full(On("01/12/2026", "10:00", "11:00")))), 0);
}

TEST_F(WorkRule, TellsAnAbsenceOfAllAsOneOfTheEmployee)
{
    Away(Everybody, "2026-12-01 12:00", "2026-12-04 08:00", "Reforma");
    Away(Bia, "2026-12-02 00:00", "2026-12-02 24:00", "Curso");
    const Text repairs = "Bia está ausente em 01/12/2026 (Reforma).";
    ExpectEach({{On("01/12/2026", "11:00", "12:00"), ""},
                {On("01/12/2026", "11:00", "13:00"), repairs},
                {{"01/12/2026", "11:00", "03/12/2026", "13:00"}, repairs},
                {On("02/12/2026"), "Bia está ausente em 02/12/2026 (Curso)."},
                {On("03/12/2026"), "Bia está ausente em 03/12/2026 (Reforma)."},
                {On("04/12/2026", "08:00", "09:00"), ""}});
    ExpectRefused(*Of(Zeca, Full(On("02/12/2026"))), "HoraInicial",
                  "Zeca está ausente em 02/12/2026 (Reforma).");
}

TEST_F(WorkRule, TellsOfTheHoursBeforeAnAbsenceAndOfBothBeforeRoom)
{
    ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
    Away(Bia, "2026-12-01 00:00", "2026-12-01 24:00", "Curso");
    ExpectRefused(*Full(On("01/12/2026")), "HoraInicial", "Bia está ausente em 01/12/2026 (Curso).");
    Works(Bia, Monday);
    ExpectRefused(*Full(On("01/12/2026")), "HoraInicial", NotAtWork("01/12/2026"));
    Run("delete from horario_do_funcionario");
    Run("delete from ausencia");
    ExpectRefused(*Full(On("01/12/2026")), "HoraInicial",
                  "Bia já tem agendamento das 09:00 às 10:00 em 01/12/2026.");
}

TEST_F(WorkRule, ComesBehindTheSituationAndBeforeTheQuestionAboutDaysOff)
{
    Away(Everybody, "2026-12-01 00:00", "2026-12-31 24:00", "Reforma");
    const auto unknown = Full(On("06/12/2026"));
    unknown->Set("Situacao", Integer(9));
    ExpectRefused(*unknown, "Situacao", "Selecione a situação.");
    ExpectRefused(*Full(On("06/12/2026")), "HoraInicial", "Bia está ausente em 06/12/2026 (Reforma).");
}

TEST_F(WorkRule, AsksNothingOfACancelledAppointment)
{
    Away(Everybody, "2026-12-01 00:00", "2026-12-31 24:00", "Reforma");
    const auto full = Full(On("01/12/2026"));
    full->Set("Situacao", Integer(3));
    EXPECT_EQ(Write(*full), 0);
    const auto simplified = Simplified(On("02/12/2026"));
    simplified->Set("Situacao", Integer(3));
    EXPECT_EQ(Write(*simplified), 0);
}

TEST_F(WorkRule, NamesTheRepetitionThatIsRefusedAndWritesNone)
{
    Away(Bia, "2026-12-21 00:00", "2026-12-31 24:00", "Férias");
    ExpectRefused(*Repeated(Full(On("01/12/2026")), 5), "HoraInicial",
                  "Bia está ausente em 22/12/2026 (Férias).");
    EXPECT_EQ(Write(*Repeated(Full(On("01/12/2026")), 2)), 0);
    EXPECT_EQ(AddedDays(), (Lines{"2026-12-01", "2026-12-08", "2026-12-15"}));
}

TEST_F(WorkRule, RefusesAWholePackageForOneOfItsVisits)
{
    Works(Bia, Tuesday, "08:00", "12:00");
    Away(Bia, "2026-12-15 11:00", "2026-12-15 12:00", "Dentista");
    const auto package = [&](const Hours& hours) {
        auto desk = Repeated(Full(hours), 3);
        desk->Set("CodigoDoServico", 3.0);
        return desk;
    };
    ExpectRefused(*package(On("01/12/2026", "10:30", "11:30")), "HoraInicial",
                  "Bia está ausente em 15/12/2026 (Dentista).");
    EXPECT_EQ(Write(*package(On("01/12/2026", "10:00", "11:00"))), 0);
    EXPECT_EQ(Count("agendamento where codigo_do_pacote > 1"), 4);
}

TEST_F(WorkRule, HoldsForPickedRowsAlsoForOneThatEndsAtMidnight)
{
    Close();
    Open(Tuesday, "18:00", "24:00");
    Open(Wednesday, "08:00", "12:00");
    const auto picked = [&](const std::vector<Hours>& rows) {
        return WithPicked(Full(On("01/12/2026")), rows);
    };
    EXPECT_EQ(Write(*picked({On("01/12/2026", "23:00", "00:00"), On("02/12/2026", "09:00", "10:00")})), 0);
    EXPECT_EQ(Added(), (Lines{"2026-12-01 23:00-2026-12-02 00:00", "2026-12-02 09:00-2026-12-02 10:00"}));
    ExpectRefused(*picked({On("09/12/2026", "09:00", "10:00"), On("08/12/2026", "23:00", "00:30")}),
                  "HoraInicial", NotAtWork("09/12/2026"));
}

TEST_F(WorkRule, LetsAnAppointmentStayWhereItIsAndAsksWhereverElseItGoes)
{
    ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
    Works(Bia, Tuesday, "10:00", "18:00");
    Away(Everybody, "2026-12-01 08:00", "2026-12-01 11:00", "Reforma");
    const auto record = Over(24, Full(On("01/12/2026")));
    record->Set("Observacao", "Sem laço.");
    EXPECT_EQ(Write(*record, "Alterar"), 0);
    for (const Long status : {2, 1}) {
        record->Set("Situacao", status);
        EXPECT_EQ(Write(*record, "Alterar"), 0) << status;
    }
    EXPECT_EQ(Write(*Over(24, Simplified(On("01/12/2026"))), "Alterar"), 0);
    ExpectAnswer(*Over(24, Full(On("01/12/2026", "09:00", "09:59"))), "Alterar", 2, "HoraInicial",
                 NotAtWork("01/12/2026"));
    ExpectAnswer(*Over(24, Full(On("01/12/2026", "10:00", "11:00"))), "Alterar", 2, "HoraInicial",
                 "Bia está ausente em 01/12/2026 (Reforma).");
    ExpectAnswer(*Of(Zeca, Over(24, Full(On("01/12/2026")))), "Alterar", 2, "HoraInicial",
                 "Zeca está ausente em 01/12/2026 (Reforma).");
    EXPECT_EQ(Write(*Over(24, Full(On("01/12/2026", "11:00", "12:00"))), "Alterar"), 0);
}

/// Number 24, Bia's bath on 01/12/2026 from 09:00 to 10:00, cancelled; all are away then.
class CancelledUnderAnAbsence : public WorkRule {
protected:
    CancelledUnderAnAbsence()
    {
        EXPECT_EQ(Write(*Full(On("01/12/2026"))), 0);
        EXPECT_EQ(Change(24, 3), 0);
        Away(Everybody, "2026-12-01 09:30", "2026-12-01 10:00", "Dedetização");
    }

    const Text objection_ = "Bia está ausente em 01/12/2026 (Dedetização).";
};

TEST_F(CancelledUnderAnAbsence, ComesBackByItsStatusOnlyWhereTheEmployeeIsAtWork)
{
    for (const int status : {1, 2, 4})
        ExpectAnswer(*DeskTest::Desk(24, status), "Alterar", 3, "", objection_);
    EXPECT_EQ(Change(24, 3), 0);
    Run("delete from ausencia");
    for (const int status : {1, 2, 4}) {
        EXPECT_EQ(Change(24, status), 0);
        ASSERT_EQ(Change(24, 3), 0);
    }
    Works(Bia, Wednesday);
    ExpectAnswer(*DeskTest::Desk(24, 1), "Alterar", 3, "", NotAtWork("01/12/2026"));
}

TEST_F(CancelledUnderAnAbsence, ComesBackWithItsRecordOnlyWhereTheEmployeeIsAtWork)
{
    for (const Long status : {1, 2, 4}) {
        const auto record = Over(24, Full(On("01/12/2026")));
        record->Set("Situacao", status);
        ExpectAnswer(*record, "Alterar", 2, "HoraInicial", objection_);
    }
    EXPECT_EQ(Write(*Over(24, Full(On("01/12/2026", "10:00", "11:00"))), "Alterar"), 0);
}

TEST_F(CancelledUnderAnAbsence, MayChangeFromAnyOtherStatusWhoeverIsAway)
{
    ASSERT_EQ(Write(*Full(On("02/12/2026"))), 0);
    Away(Everybody, "2026-12-02 00:00", "2026-12-02 24:00", "Luto");
    for (const int status : {2, 4, 1, 3})
        EXPECT_EQ(Change(25, status), 0) << status;
}

TEST_F(CancelledUnderAnAbsence, OfAPackageComesBackWithAllOrNone)
{
    const auto change = [&](Long status) {
        const auto desk = DeskTest::Desk(21, 1);
        const auto answer = desk->Call("AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa", {status});
        return std::to_string(answer.ToInteger()) + " " + desk->Get("DescricaoDaFalha").ToText();
    };
    ASSERT_EQ(change(3), "0 ");
    Away(Bia, "2026-11-27 11:30", "2026-11-27 12:00", "Dentista");
    const auto before = Contents();
    EXPECT_EQ(change(1), "3 Bia está ausente em 27/11/2026 (Dentista).");
    EXPECT_EQ(Contents(), before);
}

TEST_F(CancelledUnderAnAbsence, ThatWasDeletedIsRestoredOnlyWhileItIsCancelled)
{
    Database& database = *SharedDatabase(host_.DataSource());
    const Author author{"7", "Lia", "2026-11-20 09:04:05", "BALCAO"};
    ASSERT_EQ(Write(*Full(On("02/12/2026"))), 0);
    Away(Bia, "2026-12-02 09:59", "2026-12-02 12:00", "Dentista");
    for (const int number : {24, 25})
        ASSERT_EQ(Write(*DeskTest::Desk(number, 0), "Excluir"), 0);
    EXPECT_TRUE(RestoreAppointment(database, 24, author).IsDone());
    EXPECT_EQ(RestoreAppointment(database, 25, author).text,
              "O agendamento 25 não pode ser restaurado: Bia está ausente em 02/12/2026 (Dentista).");
}

class ClosedDays : public WorkRule { };

TEST_F(ClosedDays, AreAskedAboutByTheirNames)
{
    Close();
    const std::pair<const char*, const char*> cases[] = {
        {"06/12/2026", "A data 06/12/2026 é um domingo."},
        {"07/12/2026", "A data 07/12/2026 é uma segunda-feira."},
        {"08/12/2026", "A data 08/12/2026 é uma terça-feira."},
        {"09/12/2026", "A data 09/12/2026 é uma quarta-feira."},
        {"10/12/2026", "A data 10/12/2026 é uma quinta-feira."},
        {"11/12/2026", "A data 11/12/2026 é uma sexta-feira."},
        {"12/12/2026", "A data 12/12/2026 é um sábado."},
    };
    for (const auto& [date, text] : cases)
        ExpectRefused(*Full(On(date)), "DomingoOuFeriado", text);
    EXPECT_EQ(Write(*Simplified(On("07/12/2026"))), 0) << "nobody asks on that form";
}

TEST_F(ClosedDays, AreNotTheSundaysOfAShopThatOpensThen)
{
    Open(Sunday, "08:00", "12:00");
    Run("delete from expediente where dia_da_semana = 2");
    EXPECT_EQ(Write(*Full(On("06/12/2026"))), 0);
    ExpectRefused(*Full(On("06/12/2026", "12:00", "13:00")), "HoraInicial", NotAtWork("06/12/2026"));
    ExpectRefused(*Full(On("07/12/2026")), "DomingoOuFeriado", "A data 07/12/2026 é uma segunda-feira.");
}

TEST_F(ClosedDays, ComeBeforeHolidays)
{
    Run("insert into feriado (nome, dia, mes) values ('Feira', 6, 12), ('Natal', 25, 12)");
    ExpectRefused(*Full(On("06/12/2026")), "DomingoOuFeriado", "A data 06/12/2026 é um domingo.");
    Open(Sunday);
    ExpectRefused(*Full(On("06/12/2026")), "DomingoOuFeriado", "A data 06/12/2026 é feriado (Feira).");
}

TEST_F(ClosedDays, AreKeptOrLeftForTheNextDayThatSuitsAsTheUserAnswers)
{
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{}, "2026-12-07"},
        {{"delete from expediente where dia_da_semana = 2"}, "2026-12-08"},
        {{"insert into feriado (nome, dia, mes) values ('Feira', 8, 12)"}, "2026-12-09"},
        {{"update expediente set hora_inicial = '09:01' where dia_da_semana = 4"}, "2026-12-10"},
        {{"insert into ausencia (codigo_do_funcionario, data_inicial, hora_inicial, data_final, hora_final,"
          " motivo) values (2, '2026-12-10', '09:59', '2026-12-10', '12:00', 'Dentista')"},
         "2026-12-11"},
        {{"insert into agendamento (data_inicial, hora_inicial, data_final, hora_final,"
          " tipo_do_agendamento, nome_do_cliente, nome_do_animal, numero_do_tipo_de_servico,"
          " codigo_do_servico, codigo_do_funcionario, situacao, incluido_em, incluido_por) values"
          " ('2026-12-11', '08:00', '2026-12-11', '09:01', 1, 'a', 'b', 4, 2, 2, 1, '', '')"},
         "2026-12-12"},
        {{"insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial,"
          " hora_final) values (2, 1, '08:00', '18:00'), (2, 5, '08:00', '18:00'), (2, 3, '08:00', '09:59')"},
         "2026-12-17"},
        {{"insert into ausencia (data_inicial, hora_inicial, data_final, hora_final, motivo)"
          " values ('2026-12-07', '00:00', '2027-01-01', '00:00', 'Reforma')"},
         "2027-01-07"},
    };
    for (const auto& [changes, moved] : cases) {
        for (const std::string& change : changes)
            Run(change);
        const auto desk = Full(On("06/12/2026"));
        ExpectRefused(*desk, "DomingoOuFeriado", "A data 06/12/2026 é um domingo.");
        desk->Set("DadosValidados", true);
        desk->Set("DomingoOuFeriado", true);
        ASSERT_EQ(Write(*desk), 0);
        EXPECT_EQ(AddedDays().back(), moved);
        Run("delete from agendamento where data_inicial = '" + std::string(moved) + "'");
    }
    EXPECT_EQ(Write(*Answered(Full(On("06/12/2026")), false)), 0);
    EXPECT_EQ(AddedDays().back(), "2026-12-06");
}

TEST_F(ClosedDays, AreNotAskedAboutAtHoursThatNoOpenDayHas)
{
    Run("update expediente set hora_inicial = '08:00', hora_final = '18:00'");
    const Text no = NotAtWork("06/12/2026");
    ExpectRefused(*Full(On("06/12/2026", "17:30", "18:30")), "HoraInicial", no);
    ExpectRefused(*WithPicked(Answered(Full(On("01/12/2026")), true), {On("06/12/2026", "20:00", "21:00")}),
                  "HoraInicial", no);
}

TEST_F(ClosedDays, AreKeptByAnEmployeeWhoWorksOnlyThen)
{
    Works(Bia, Sunday, "08:00", "12:00");
    ExpectRefused(*Full(On("06/12/2026")), "DomingoOuFeriado", "A data 06/12/2026 é um domingo.");
    EXPECT_EQ(Write(*Answered(Full(On("06/12/2026")), true)), 0);
    EXPECT_EQ(AddedDays(), Lines{"2026-12-06"});
}

TEST_F(ClosedDays, OfAShopThatIsNeverOpenAreKept)
{
    Close();
    const auto desk = Full(On("07/12/2026"));
    ExpectRefused(*desk, "DomingoOuFeriado", "A data 07/12/2026 é uma segunda-feira.");
    EXPECT_EQ(Write(*Answered(Full(On("07/12/2026")), true)), 0);
    EXPECT_EQ(AddedDays(), Lines{"2026-12-07"});
}

TEST_F(ClosedDays, KeepAStoredAppointmentForWhichThereIsNoOtherDay)
{
    ASSERT_EQ(Write(*Answered(Full(On("06/12/2026", "20:00", "21:00")), false)), 0);
    Run("update expediente set hora_inicial = '08:00', hora_final = '18:00'");
    const auto record = Over(24, Full(On("06/12/2026", "20:00", "21:00")));
    ExpectAnswer(*record, "Alterar", 2, "DomingoOuFeriado", "A data 06/12/2026 é um domingo.");
    record->Set("DadosValidados", true);
    record->Set("DomingoOuFeriado", true);
    EXPECT_EQ(Write(*record, "Alterar"), 0);
    EXPECT_EQ(AddedDays(), Lines{"2026-12-06"});
}

TEST_F(ClosedDays, AreLeftByACancelledAppointmentForTheNextOpenDayWhateverItsHours)
{
    Run("update expediente set hora_inicial = '08:00', hora_final = '18:00'");
    const auto desk = Answered(Full(On("06/12/2026", "20:00", "21:00")), true);
    desk->Set("Situacao", Integer(3));
    EXPECT_EQ(Write(*desk), 0);
    EXPECT_EQ(AddedDays(), Lines{"2026-12-07"});
}

TEST_F(ClosedDays, OfPickedRowsAreLeftForDaysOnWhichTheEmployeeIsAtWork)
{
    Works(Bia, Wednesday, "08:00", "18:00");
    Works(Bia, Friday, "08:00", "18:00");
    const auto desk =
        WithPicked(Full(On("01/12/2026")), {On("06/12/2026"), On("13/12/2026"), On("09/12/2026")});
    desk->Set("DomingoOuFeriado", true);
    EXPECT_EQ(Write(*desk), 0);
    EXPECT_EQ(AddedDays(), (Lines{"2026-12-11", "2026-12-16", "2026-12-09"}));
}

} // namespace kova::family::test
