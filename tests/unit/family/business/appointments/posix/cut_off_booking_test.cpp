// Bookings whose process ends in the middle.

#include "tests/unit/family/bath.hpp"
#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>

namespace kova::family::test {

namespace {

/// A full record, repeated every week.
AppointmentInput Series(Long repetitions)
{
    AppointmentInput input = Bath("01/12/2026");
    input.kind = 0;
    input.customer = 10;
    input.animal = 50;
    input.repetitions = repetitions;
    input.frequency = AppointmentInput::Weekly;
    return input;
}

/// What a process that books a series tells through its pipe.
constexpr char Begins = 'b', Done = 'd';

/// In a process of its own: tells that it begins, books, and tells that it is done.
[[noreturn]] void BookAndTell(const std::string& path, int pipe)
{
    int result = 1;
    try {
        const std::shared_ptr<Database> database = OpenDatabase(path);
        if (write(pipe, &Begins, 1) == 1 && AddAppointments(*database, Series(199), Somebody).IsDone()
            && write(pipe, &Done, 1) == 1)
            result = 0;
    } catch (const Failure&) {
        result = 2;
    }
    _exit(result);
}

} // namespace

class CutOffBooking : public BookingTest {
protected:
    /// Starts a process that books 200 appointments and kills it that long after its beginning; without a
    /// time when it is done. Answers whether it told that it was done.
    bool BookAndKill(std::optional<std::chrono::microseconds> after)
    {
        // A connection that is open here would be of no use to the other process.
        CloseSharedDatabases();
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        if (child == 0)
            BookAndTell(host_.DataSource(), ends[1]);
        close(ends[1]);
        char told = 0;
        EXPECT_EQ(read(ends[0], &told, 1), 1);
        EXPECT_EQ(told, Begins);
        bool done = !after && read(ends[0], &told, 1) == 1;
        if (after)
            WaitActively(*after);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        while (read(ends[0], &told, 1) == 1)
            done = done || told == Done;
        close(ends[0]);
        return done;
    }

private:
    static void WaitActively(std::chrono::microseconds time)
    {
        const auto end = std::chrono::steady_clock::now() + time;
        while (std::chrono::steady_clock::now() < end) { }
    }
};

TEST_F(CutOffBooking, LeavesNoneOrAllOfItsAppointments)
{
    for (int step = 0; step <= 24; ++step) {
        SCOPED_TRACE(step);
        std::optional<std::chrono::microseconds> after = std::chrono::microseconds(step * 1000);
        if (step == 24)
            after.reset();
        const bool done = BookAndKill(after);
        const int appointments = Count("agendamento where numero > 23");
        EXPECT_TRUE(appointments == 0 || appointments == 200) << appointments;
        EXPECT_EQ(Count("auditoria"), appointments);
        if (!TestsRunOnServer()) {
            EXPECT_EQ(Texts("pragma integrity_check"), std::vector<std::string>{"ok"});
        }
        EXPECT_TRUE(appointments == 200 || !done);
        EXPECT_TRUE(done || after);
        Run("delete from agendamento where numero > 23");
        Run("delete from auditoria");
    }
}

} // namespace kova::family::test
