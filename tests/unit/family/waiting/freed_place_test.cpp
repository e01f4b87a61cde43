// What a write of an appointment has left free.

#include "tests/unit/family/waiting/waiting_fixture.hpp"

#include "family/business/appointments/appointment_move.hpp"
#include "family/data/stores/last_appointment.hpp"
#include "family/waiting/freed_place.hpp"

namespace kova::family::test {

class PlaceIsFreed : public WaitingTest {
protected:
    std::string Freed(Key number)
    {
        const auto freed = waiting::FreedByLastWrite(Data(), number);
        return freed ? IsoMoment(freed->span.start) + " " + IsoMoment(freed->span.end) + " "
                + std::to_string(freed->employee)
                     : "";
    }
    void Moves(TimeOfDay from, TimeOfDay until, Key employee = 2)
    {
        const Date day{2026, 12, 1};
        const WriteAnswer answer = MoveAppointment(
            Data(), {FullNumber, Stored(FullNumber).versao, employee, {{day, from}, {day, until}}}, marcos_);
        ASSERT_TRUE(answer.IsDone()) << answer.text;
    }

    const std::string whole_ = "2026-12-01 09:00:00 2026-12-01 10:00:00 2";
};

TEST_F(PlaceIsFreed, ByACancellationAndADeletion)
{
    EXPECT_EQ(Freed(FullNumber), "") << "a booking leaves nothing free";
    OtherSetsStatus(FullNumber, 2);
    EXPECT_EQ(Freed(FullNumber), "");
    OtherSetsStatus(FullNumber, 3);
    EXPECT_EQ(Freed(FullNumber), whole_);
    OtherDeletes(FullNumber);
    EXPECT_EQ(Freed(FullNumber), "") << "it was cancelled before";
    OtherDeletes(SimplifiedNumber);
    EXPECT_EQ(Freed(SimplifiedNumber), "2026-12-01 09:00:00 2026-12-01 10:00:00 1");
}

TEST_F(PlaceIsFreed, ByAMoveOrAShorterTime)
{
    Moves({9, 0, 0}, {10, 30, 0});
    EXPECT_EQ(Freed(FullNumber), "") << "longer takes what it had";
    Moves({9, 0, 0}, {10, 0, 0});
    EXPECT_EQ(Freed(FullNumber), "2026-12-01 09:00:00 2026-12-01 10:30:00 2");
    Moves({11, 0, 0}, {12, 0, 0});
    EXPECT_EQ(Freed(FullNumber), whole_);
    Moves({11, 0, 0}, {12, 0, 0}, 1);
    EXPECT_EQ(Freed(FullNumber), "2026-12-01 11:00:00 2026-12-01 12:00:00 2");
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Laço."; });
    EXPECT_EQ(Freed(FullNumber), "");
}

TEST_F(PlaceIsFreed, ByNothingThatWasNeverThere) { EXPECT_EQ(Freed(9999), ""); }

TEST_F(PlaceIsFreed, AndTheAnimalsLastAppointmentIsKnown)
{
    EXPECT_EQ(LastAppointmentOf(Data(), 50), FullNumber);
    EXPECT_EQ(LastAppointmentOf(Data(), 9999), 0);
}

} // namespace kova::family::test
