// An appointment is moved to another time or employee, as it stood on the screen.

#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

#include "family/business/appointments/appointment_move.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

class AppointmentIsMoved : public TwoDesksTest {
protected:
    Database& Data() { return *SharedDatabase(host_.DataSource()); }

    /// By this desk, to that hour of 01/12/2026.
    WriteAnswer Moves(Key number, Key employee, TimeOfDay from, TimeOfDay until, Key version = 1)
    {
        constexpr Date Tuesday{2026, 12, 1};
        return MoveAppointment(Data(), {number, version, employee, {{Tuesday, from}, {Tuesday, until}}},
                               lia_);
    }
    std::string Now(Key number)
    {
        const AppointmentRow row = Stored(number);
        return row.dataInicial + " " + row.horaInicial + " " + row.dataFinal + " " + row.horaFinal + " "
            + std::to_string(row.codigoDoFuncionario);
    }

    const Author lia_{"7", "Lia", "2026-11-20 09:20:00", "BALCAO-1"};
};

TEST_F(AppointmentIsMoved, AndNothingElseOfItIsChanged)
{
    AppointmentRow before = Stored(FullNumber);
    const WriteAnswer answer = Moves(FullNumber, 1, {11, 15, 0}, {12, 0, 0});
    ASSERT_TRUE(answer.IsDone()) << answer.text;
    EXPECT_EQ(answer.version, 2);
    EXPECT_EQ(Now(FullNumber), "2026-12-01 11:15 2026-12-01 12:00 1");
    const AppointmentRow after = Stored(FullNumber);
    EXPECT_EQ(after.versao, 2);
    EXPECT_EQ(after.alteradoPor.value, "Lia");
    EXPECT_EQ(after.codigoDoCliente.value, before.codigoDoCliente.value);
    EXPECT_EQ(after.codigoDoServico, before.codigoDoServico);
    EXPECT_EQ(after.observacao.value, before.observacao.value);
    EXPECT_EQ(after.situacao, before.situacao);
}

TEST_F(AppointmentIsMoved, KeepsWhatAnotherDeskHasChangedElsewhereInIt)
{
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Laço verde."; });
    EXPECT_EQ(Moves(FullNumber, 2, {10, 0, 0}, {11, 0, 0}).version, 3);
    EXPECT_EQ(Stored(FullNumber).observacao.value, "Laço verde.");
    EXPECT_EQ(Now(FullNumber), "2026-12-01 10:00 2026-12-01 11:00 2");
}

TEST_F(AppointmentIsMoved, IsRefusedWhereAnotherDeskHasMovedItMeanwhile)
{
    OtherChanges(FullNumber, [](AppointmentInput& input) {
        input.startTime = "14:00";
        input.endTime = "15:00";
    });
    const WriteAnswer answer = Moves(FullNumber, 2, {10, 0, 0}, {11, 0, 0});
    EXPECT_EQ(answer.status, WriteAnswer::Refused);
    EXPECT_NE(answer.text.find("Marcos"), std::string::npos) << answer.text;
    EXPECT_EQ(Now(FullNumber), "2026-12-01 14:00 2026-12-01 15:00 2");
}

TEST_F(AppointmentIsMoved, IsRefusedWhereTheEmployeeHasNoRoom)
{
    const WriteAnswer answer = Moves(FullNumber, 1, {9, 30, 0}, {10, 30, 0});
    EXPECT_EQ(answer.status, WriteAnswer::Invalid);
    EXPECT_EQ(answer.field, "HoraInicial");
    EXPECT_EQ(Now(FullNumber), "2026-12-01 09:00 2026-12-01 10:00 2");
}

TEST_F(AppointmentIsMoved, IsRefusedWhereItIsGone)
{
    OtherDeletes(FullNumber);
    EXPECT_EQ(Moves(FullNumber, 2, {10, 0, 0}, {11, 0, 0}).status, WriteAnswer::Refused);
}

TEST_F(AppointmentIsMoved, ToADayOffAfterTheUserWasAsked)
{
    AppointmentMove move{FullNumber, 1, 2, {{{2026, 12, 6}, {9, 0, 0}}, {{2026, 12, 6}, {10, 0, 0}}}};
    const WriteAnswer asked = MoveAppointment(Data(), move, lia_);
    EXPECT_EQ(asked.field, DayOffField);
    EXPECT_EQ(Now(FullNumber), "2026-12-01 09:00 2026-12-01 10:00 2");
    move.isDayOffWanted = true;
    ASSERT_TRUE(MoveAppointment(Data(), move, lia_).IsDone());
    EXPECT_EQ(Now(FullNumber), "2026-12-06 09:00 2026-12-06 10:00 2");
}

TEST_F(AppointmentIsMoved, AndBackByTheVersionThatWasWritten)
{
    const WriteAnswer there = Moves(FullNumber, 1, {11, 0, 0}, {12, 0, 0});
    ASSERT_TRUE(there.IsDone()) << there.text;
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    ASSERT_TRUE(Moves(FullNumber, 2, {9, 0, 0}, {10, 0, 0}, there.version).IsDone());
    EXPECT_EQ(Now(FullNumber), "2026-12-01 09:00 2026-12-01 10:00 2");
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 1);
}

} // namespace kova::family::test
