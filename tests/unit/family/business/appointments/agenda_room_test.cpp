// Appointments that an employee has room for, and those that find the place taken.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

namespace kova::family::test {

class EmployeeRoomRule : public BookingTest {
protected:
    void SetLimit(int limit)
    {
        Run("update funcionario set agendamentos_simultaneos = " + std::to_string(limit)
            + " where codigo = 2");
    }
    void Book(const Hours& hours) { ASSERT_EQ(Write(*Full(hours)), 0); }
    void ExpectNoRoom(const Hours& hours, const Text& text)
    {
        SCOPED_TRACE(hours.startDate + " " + hours.startTime);
        ExpectRefused(*Full(hours), "HoraInicial", text);
    }
};

TEST_F(EmployeeRoomRule, RefusesWhatOverlapsAndNamesTheOtherOne)
{
    Book(On("01/12/2026", "09:30", "10:30"));
    const Text taken = "Bia já tem agendamento das 09:30 às 10:30 em 01/12/2026.";
    for (const auto& [start, end] :
         {std::pair("09:00", "09:31"), std::pair("10:29", "11:00"), std::pair("09:30", "10:30"),
          std::pair("09:45", "10:00"), std::pair("08:00", "12:00")})
        ExpectNoRoom(On("01/12/2026", start, end), taken);
}

TEST_F(EmployeeRoomRule, LetsWhatOnlyTouchesAndOtherDaysAndOtherEmployeesPass)
{
    Book(On("01/12/2026", "09:30", "10:30"));
    Book(On("01/12/2026", "09:00", "09:30"));
    Book(On("01/12/2026", "10:30", "11:00"));
    Book(On("02/12/2026", "09:30", "10:30"));
    const auto other = Full(On("01/12/2026", "09:30", "10:30"));
    other->Set("CodigoDoFuncionario", Long(1));
    EXPECT_EQ(Write(*other), 0);
}

TEST_F(EmployeeRoomRule, HoldsForSimplifiedAppointmentsToo)
{
    ASSERT_EQ(Write(*Simplified(On("01/12/2026", "09:30", "10:30"))), 0);
    ExpectNoRoom(On("01/12/2026", "10:00", "11:00"),
                 "Bia já tem agendamento das 09:30 às 10:30 em 01/12/2026.");
    ExpectRefused(*Simplified(On("01/12/2026", "10:00", "11:00")), "HoraInicial",
                  "Bia já tem agendamento das 09:30 às 10:30 em 01/12/2026.");
}

TEST_F(EmployeeRoomRule, SeesWhatBeganOnAnEarlierDay)
{
    Book({"30/11/2026", "22:00", "03/12/2026", "08:00"});
    const Text taken = "Bia já tem agendamento das 22:00 às 08:00 em 30/11/2026.";
    ExpectNoRoom(On("01/12/2026"), taken);
    ExpectNoRoom(On("03/12/2026", "07:30", "08:30"), taken);
    ExpectNoRoom({"29/11/2026", "09:00", "30/11/2026", "22:01"}, taken);
    Book(On("03/12/2026", "08:00", "09:00"));
}

TEST_F(EmployeeRoomRule, LeavesCancelledAppointmentsOut)
{
    Book(On("01/12/2026"));
    ASSERT_EQ(Change(24, 3), 0);
    Book(On("01/12/2026"));
    const auto cancelled = Full(On("01/12/2026"));
    cancelled->Set("Situacao", Long(3));
    EXPECT_EQ(Write(*cancelled), 0);
}

TEST_F(EmployeeRoomRule, CountsAttendedAppointments)
{
    Book(On("01/12/2026"));
    ASSERT_EQ(Change(24, 2), 0);
    ExpectNoRoom(On("01/12/2026"), "Bia já tem agendamento das 09:00 às 10:00 em 01/12/2026.");
}

TEST_F(EmployeeRoomRule, GoesByTheNumberThatRunsAtTheSameTime)
{
    SetLimit(2);
    Book(On("01/12/2026", "09:00", "10:00"));
    Book(On("01/12/2026", "10:00", "11:00"));
    // Beside each of the two there is room for one.
    Book(On("01/12/2026", "09:00", "11:00"));
    ExpectNoRoom(On("01/12/2026", "10:30", "12:00"),
                 "Bia já tem agendamento das 09:00 às 11:00 em 01/12/2026.");
    Book(On("01/12/2026", "11:00", "12:00"));
}

TEST_F(EmployeeRoomRule, NamesTheFirstOneOfTheMomentThatIsFull)
{
    SetLimit(2);
    Book(On("01/12/2026", "08:00", "09:00"));
    Book(On("01/12/2026", "10:00", "11:00"));
    Book(On("01/12/2026", "09:30", "10:30"));
    ExpectNoRoom(On("01/12/2026", "08:30", "12:00"),
                 "Bia já tem agendamento das 09:30 às 10:30 em 01/12/2026.");
}

TEST_F(EmployeeRoomRule, KnowsNoLimitWhereItIsZero)
{
    SetLimit(0);
    for (int at = 0; at < 5; ++at)
        Book(On("01/12/2026"));
    SetLimit(3);
    ExpectNoRoom(On("01/12/2026"), "Bia já tem agendamento das 09:00 às 10:00 em 01/12/2026.");
}

TEST_F(EmployeeRoomRule, LeavesTheAlteredAppointmentItselfOut)
{
    Book(On("01/12/2026", "09:00", "10:00"));
    Book(On("01/12/2026", "11:00", "12:00"));
    EXPECT_EQ(Write(*Over(24, Full(On("01/12/2026", "09:30", "11:00"))), "Alterar"), 0);
    ExpectAnswer(*Over(24, Full(On("01/12/2026", "09:30", "11:01"))), "Alterar", 2, "HoraInicial",
                 "Bia já tem agendamento das 11:00 às 12:00 em 01/12/2026.");
    const auto cancelled = Over(24, Full(On("01/12/2026", "09:30", "11:01")));
    cancelled->Set("Situacao", Long(3));
    EXPECT_EQ(Write(*cancelled, "Alterar"), 0);
}

TEST_F(EmployeeRoomRule, HoldsAmongTheAppointmentsOfOneBooking)
{
    const auto desk = Full(On("01/12/2026"));
    desk->Set("CriadaListaDasDatasEHorasSelecionadas", true);
    desk->Set(
        "ListaDasDatasEHorasSelecionadas",
        Picked({On("03/12/2026", "09:00", "10:00"), On("02/12/2026"), On("03/12/2026", "09:59", "10:30")}));
    ExpectRefused(*desk, "HoraInicial", "Bia já tem agendamento das 09:00 às 10:00 em 03/12/2026.");
    SetLimit(2);
    EXPECT_EQ(Write(*desk), 0);
}

TEST_F(EmployeeRoomRule, HoldsBetweenTheRepetitionsOfALongAppointment)
{
    const auto desk = Full({"01/12/2026", "09:00", "08/12/2026", "09:01"});
    desk->Set("QuantidadeDeReagendamentos", Long(1));
    desk->Set("FrequenciaDeReagendamento", Integer(0));
    ExpectRefused(*desk, "HoraInicial", "Bia já tem agendamento das 09:00 às 09:01 em 01/12/2026.");
}

TEST_F(EmployeeRoomRule, NamesTheRepetitionThatFindsThePlaceTaken)
{
    Book(On("22/12/2026", "09:30", "10:15"));
    const auto desk = Full(On("01/12/2026"));
    desk->Set("QuantidadeDeReagendamentos", Long(5));
    desk->Set("FrequenciaDeReagendamento", Integer(0));
    ExpectRefused(*desk, "HoraInicial", "Bia já tem agendamento das 09:30 às 10:15 em 22/12/2026.");
}

} // namespace kova::family::test
