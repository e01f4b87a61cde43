// Bookings at the same moment.

#include "tests/unit/family/bath.hpp"
#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/sources/data_source.hpp"

#include <atomic>
#include <thread>

namespace kova::family::test {

namespace {

struct Answers {
    std::atomic<int> done = 0, noRoom = 0, other = 0;
};

/// Books the same hour of many days, each on a connection of its own, as fast as it can.
void BookDays(const std::string& path, int days, Answers& answers)
{
    try {
        const std::shared_ptr<Database> database = OpenDatabase(path);
        for (int day = 1; day <= days; ++day) {
            const AppointmentInput input = Bath(FormatDate({2027, 1, day}));
            const WriteAnswer answer = AddAppointments(*database, input, Somebody);
            const bool noRoom = answer.field == "HoraInicial";
            ++(answer.IsDone() ? answers.done : noRoom ? answers.noRoom : answers.other);
        }
    } catch (const Failure&) {
        ++answers.other;
    }
}

} // namespace

class BookingRace : public BookingTest { };

TEST_F(BookingRace, OfManyDesksNeverGoesBeyondTheLimit)
{
    constexpr int Desks = 6, Days = 12;
    for (const int limit : {1, 2}) {
        Run("delete from agendamento where numero > 23");
        Run("update funcionario set agendamentos_simultaneos = " + std::to_string(limit));
        Answers answers;
        std::vector<std::thread> desks;
        for (int desk = 0; desk < Desks; ++desk)
            desks.emplace_back([&] { BookDays(host_.DataSource(), Days, answers); });
        for (std::thread& desk : desks)
            desk.join();
        EXPECT_EQ(answers.done, limit * Days);
        EXPECT_EQ(answers.noRoom, (Desks - limit) * Days);
        EXPECT_EQ(answers.other, 0);
        EXPECT_EQ(Count("(select data_inicial from agendamento where numero > 23"
                        " group by data_inicial having count(*) = "
                        + std::to_string(limit) + ") as days"),
                  Days);
    }
}

TEST_F(BookingRace, OfTwoDeletionsDeletesOnceAndTellsTheOther)
{
    Answers answers;
    const auto remove = [&] {
        const std::shared_ptr<Database> database = OpenDatabase(host_.DataSource());
        for (int number = 1; number <= 6; ++number) {
            AppointmentInput input;
            input.number = number;
            const WriteAnswer answer = DeleteAppointment(*database, input, Somebody);
            ++(answer.IsDone() ? answers.done : answers.other);
        }
    };
    std::thread first(remove), second(remove);
    first.join();
    second.join();
    EXPECT_EQ(answers.done, 6);
    EXPECT_EQ(answers.other, 6);
    EXPECT_EQ(Count("auditoria where operacao = 'exclusao'"), 6);
}

} // namespace kova::family::test
