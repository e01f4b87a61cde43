// Cancelled appointments that come back to their employee, and stored ones that stay where they are.

#include "tests/support/meeting_point.hpp"
#include "tests/unit/family/bath.hpp"
#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/data/sources/data_source.hpp"

#include <atomic>
#include <functional>
#include <thread>

namespace kova::family::test {

class CancelledAppointments : public BookingTest {
protected:
    /// Bia's bath from 09:00 to 10:00, number 24, which is cancelled.
    void Cancel()
    {
        ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
        ASSERT_EQ(Change(24, 3), 0);
    }
    void Book(const Hours& hours) { ASSERT_EQ(Write(*Full(hours)), 0); }

    /// All of package 1.
    Integer ChangePackage(Long status)
    {
        const auto desk = DeskTest::Desk(21, 1);
        const Integer answer =
            desk->Call("AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa", {status}).ToInteger();
        told_ = desk->Get("DescricaoDaFalha").ToText();
        return answer;
    }
    void ExpectPackageRefused(const Text& text)
    {
        const auto before = Contents();
        EXPECT_EQ(ChangePackage(1), 3);
        EXPECT_EQ(told_, text);
        EXPECT_EQ(Contents(), before);
    }

    Text told_;
};

TEST_F(CancelledAppointments, ComeBackByTheirStatusAloneOnlyWhereThereIsRoom)
{
    Cancel();
    Book(On("01/12/2026", "09:30", "10:30"));
    for (const int status : {1, 2, 4})
        ExpectAnswer(*DeskTest::Desk(24, status), "Alterar", 3, "",
                     "Bia já tem agendamento das 09:30 às 10:30 em 01/12/2026.");
    ASSERT_EQ(Change(25, 3), 0);
    for (const int status : {1, 2, 4}) {
        EXPECT_EQ(Change(24, status), 0);
        EXPECT_EQ(StatusOf(24), status);
        ASSERT_EQ(Change(24, 3), 0);
    }
}

TEST_F(CancelledAppointments, ComeBackBesideWhatOnlyTouchesThemOrIsAnothers)
{
    Cancel();
    Book(On("01/12/2026", "08:00", "09:00"));
    Book(On("01/12/2026", "10:00", "11:00"));
    const auto others = Full(On("01/12/2026"));
    others->Set("CodigoDoFuncionario", Long(1));
    ASSERT_EQ(Write(*others), 0);
    EXPECT_EQ(Change(24, 1), 0);
}

TEST_F(CancelledAppointments, ComeBackUpToTheNumberThatRunsAtTheSameTime)
{
    Cancel();
    Book(On("01/12/2026"));
    Run("update funcionario set agendamentos_simultaneos = 2");
    EXPECT_EQ(Change(24, 1), 0);
    ASSERT_EQ(Change(24, 3), 0);
    Book(On("01/12/2026", "09:59", "10:30"));
    EXPECT_EQ(Change(24, 1), 3);
    Run("update funcionario set agendamentos_simultaneos = 0");
    EXPECT_EQ(Change(24, 1), 0);
}

TEST_F(CancelledAppointments, AreToldOfTheirPreSaleBeforeTheirRoom)
{
    Cancel();
    Book(On("01/12/2026"));
    Run("update agendamento set numero_do_tipo_de_servico = 1, codigo_do_servico = 1 where numero = 24");
    ExpectAnswer(*DeskTest::Desk(24, 4), "Alterar", 3, "",
                 "Não é possível gerar pré-venda para serviços tipo clínico.");
}

TEST_F(CancelledAppointments, NeedNoRoomToStayCancelled)
{
    Cancel();
    Book(On("01/12/2026"));
    EXPECT_EQ(Change(24, 3), 0);
    const auto record = Over(24, Full(On("01/12/2026")));
    record->Set("Situacao", Long(3));
    EXPECT_EQ(Write(*record, "Alterar"), 0);
}

TEST_F(CancelledAppointments, ComeBackWithTheirRecordOnlyWhereThereIsRoom)
{
    Cancel();
    Book(On("01/12/2026", "09:30", "10:30"));
    for (const Long status : {1, 2, 4}) {
        const auto record = Over(24, Full(On("01/12/2026")));
        record->Set("Situacao", status);
        ExpectAnswer(*record, "Alterar", 2, "HoraInicial",
                     "Bia já tem agendamento das 09:30 às 10:30 em 01/12/2026.");
    }
    EXPECT_EQ(Write(*Over(24, Full(On("01/12/2026", "08:30", "09:30"))), "Alterar"), 0);
}

TEST_F(CancelledAppointments, OfAPackageComeBackAllOrNone)
{
    ASSERT_EQ(ChangePackage(3), 0);
    Book(On("27/11/2026", "10:30", "10:45"));
    ExpectPackageRefused("Bia já tem agendamento das 10:30 às 10:45 em 27/11/2026.");
    ASSERT_EQ(Change(24, 3), 0);
    EXPECT_EQ(ChangePackage(1), 0);
    EXPECT_EQ(Count("agendamento where codigo_do_pacote = 1 and situacao = 1"), 3);
}

TEST_F(CancelledAppointments, OfAPackageTakeTheRoomOfOneAnother)
{
    ASSERT_EQ(ChangePackage(3), 0);
    Run("update agendamento set hora_inicial = '09:30' where numero = 22");
    ExpectPackageRefused("Bia já tem agendamento das 09:00 às 10:00 em 27/11/2026.");
}

TEST_F(CancelledAppointments, OfAPackageLeaveTheOthersWhereTheyAre)
{
    ASSERT_EQ(Change(22, 3), 0);
    Run("update agendamento set hora_inicial = '08:00' where numero = 23");
    ExpectPackageRefused("Bia já tem agendamento das 08:00 às 12:00 em 27/11/2026.");
    ASSERT_EQ(Change(23, 3), 0);
    ASSERT_EQ(Change(22, 1), 0);
    Run("update agendamento set hora_inicial = '11:00' where numero = 23");
    // 21 and 22 are booked, and stay so.
    EXPECT_EQ(ChangePackage(1), 0);
    EXPECT_EQ(StatusOf(23), 1);
}

TEST_F(CancelledAppointments, OfAnEmployeeWhoIsNotRegisteredComeBack)
{
    Cancel();
    UncheckReferences(Session());
    Run("delete from funcionario where codigo = 2");
    EXPECT_EQ(Change(24, 1), 0);
}

/// Two baths of Bia at the same time, 24 and 25, as another program could have left them.
class OverbookedAppointments : public BookingTest {
protected:
    OverbookedAppointments()
    {
        EXPECT_EQ(Write(*Full(On("01/12/2026"))), 0);
        EXPECT_EQ(Write(*Full(On("02/12/2026"))), 0);
        Run("update agendamento set data_inicial = '2026-12-01', data_final = '2026-12-01' where numero = "
            "25");
    }

    Desk Record(const Hours& hours) { return Over(24, Full(hours)); }
    void ExpectNoRoom(Component& agenda)
    {
        ExpectAnswer(agenda, "Alterar", 2, "HoraInicial",
                     "Bia já tem agendamento das 09:00 às 10:00 em 01/12/2026.");
    }
};

TEST_F(OverbookedAppointments, CanBeAlteredWhereTheyAre)
{
    const auto record = Record(On("01/12/2026"));
    record->Set("Observacao", "Sem laço.");
    ASSERT_EQ(Write(*record, "Alterar"), 0);
    EXPECT_EQ(Count("agendamento where numero = 24 and observacao = 'Sem laço.'"), 1);
    for (const Long status : {2, 4, 1}) {
        record->Set("Situacao", status);
        EXPECT_EQ(Write(*record, "Alterar"), 0) << status;
    }
    EXPECT_EQ(Write(*Over(25, Simplified(On("01/12/2026"))), "Alterar"), 0);
}

TEST_F(OverbookedAppointments, NeedRoomWhereverElseTheyGo)
{
    for (const Hours& hours :
         {On("01/12/2026", "09:01", "10:00"), On("01/12/2026", "09:00", "09:59"),
          On("01/12/2026", "09:00", "10:01"), Hours{"01/12/2026", "09:00", "02/12/2026", "10:00"},
          Hours{"30/11/2026", "09:00", "01/12/2026", "10:00"}}) {
        SCOPED_TRACE(hours.startDate + " " + hours.startTime + " " + hours.endTime);
        ExpectNoRoom(*Record(hours));
    }
    EXPECT_EQ(Write(*Record(On("01/12/2026", "10:00", "11:00")), "Alterar"), 0);
}

TEST_F(OverbookedAppointments, NeedRoomWithAnotherEmployee)
{
    Run("update agendamento set codigo_do_funcionario = 1 where numero = 24");
    ExpectNoRoom(*Record(On("01/12/2026")));
}

TEST_F(OverbookedAppointments, NeedRoomOnceTheyWereCancelled)
{
    ASSERT_EQ(Change(24, 3), 0);
    ExpectNoRoom(*Record(On("01/12/2026")));
    EXPECT_EQ(Change(24, 1), 3);
}

TEST_F(OverbookedAppointments, NeedRoomOnTheDayThatTheyMoveToFromASunday)
{
    Run("update agendamento set data_inicial = '2026-12-06', data_final = '2026-12-06' where numero > 23");
    ASSERT_EQ(Write(*Full(On("07/12/2026", "09:30", "10:30"))), 0);
    const auto record = Record(On("06/12/2026"));
    record->Set("DadosValidados", true);
    ASSERT_EQ(Write(*record, "Alterar"), 0);
    EXPECT_EQ(Texts("select data_inicial from agendamento where numero = 24"),
              std::vector<std::string>{"2026-12-06"});
    record->Set("DomingoOuFeriado", true);
    ASSERT_EQ(Write(*record, "Alterar"), 0);
    EXPECT_EQ(Texts("select data_inicial from agendamento where numero = 24"),
              std::vector<std::string>{"2026-12-08"});
}

/// A desk that books and one that brings back, for the same hour of the same employee.
class ReturnRace : public BookingTest { };

TEST_F(ReturnRace, NeverGoesBeyondTheLimit)
{
    constexpr int Days = 25;
    const auto inputOf = [](int day) { return Bath(FormatDate({2027, 1, day})); };
    const std::shared_ptr<Database> database = OpenDatabase(host_.DataSource());
    for (int day = 1; day <= Days; ++day) {
        AppointmentInput cancelled = inputOf(day);
        cancelled.status = 3;
        ASSERT_TRUE(AddAppointments(*database, cancelled, Somebody).IsDone());
    }
    kova::test::MeetingPoint both(2);
    std::atomic<int> done = 0, refused = 0;
    const auto onEachDay = [&](const std::function<WriteAnswer(Database&, int)>& write) {
        const std::shared_ptr<Database> own = OpenDatabase(host_.DataSource());
        for (int day = 1; day <= Days; ++day) {
            both.ArriveAndWait();
            ++(write(*own, day).IsDone() ? done : refused);
        }
    };
    {
        const std::jthread books(
            onEachDay, [&](Database& own, int day) { return AddAppointments(own, inputOf(day), Somebody); });
        const std::jthread bringsBack(
            onEachDay, [&](Database& own, int day) { return ChangeStatus(own, Stored + day, 1, Somebody); });
    }
    EXPECT_EQ(done, Days);
    EXPECT_EQ(refused, Days);
    EXPECT_EQ(Count("(select data_inicial from agendamento where numero > 23 and situacao = 1"
                    " group by data_inicial having count(*) = 1) as days"),
              Days);
}

} // namespace kova::family::test
