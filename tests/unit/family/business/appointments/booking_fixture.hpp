#pragma once

#include "tests/unit/family/business/appointments/desk_fixture.hpp"

namespace kova::family::test {

/// When an appointment is booked for, as a record form sends it.
struct Hours {
    Text startDate, startTime, endDate, endTime;
};

/// An hour's worth of that day.
Hours On(const Text& date, const Text& start = "09:00", const Text& end = "10:00");

/// A table of picked dates as the form hands it over, with its empty last row.
ArrayRef Picked(const std::vector<Hours>& rows);

/// The shop with a user at its desk, who writes whole appointments. Employee 1, Zeca, gives consultations and
/// 2, Bia, baths; each is free from 28/11/2026 on. Service 3 is a package of four baths.
class BookingTest : public DeskTest {
protected:
    BookingTest();

    using Desk = std::unique_ptr<Agenda>;

    /// A component with everything that the record form sets for a new appointment: a bath by Bia, for
    /// Paçoca of customer 10 or for texts.
    Desk Full(const Hours& hours);
    Desk Simplified(const Hours& hours);
    /// The same on a stored appointment.
    Desk Over(int number, Desk desk);

    /// The write status of one member. On 0 the number of the appointment with the highest number is `last`.
    Integer Write(Component& agenda, const char* member = "Adicionar");
    /// The member answers that status, field and text, and changes nothing.
    void ExpectAnswer(Component& agenda, const char* member, Integer status, const Text& field,
                      const Text& text);
    void ExpectRefused(Component& agenda, const Text& field, const Text& text)
    {
        ExpectAnswer(agenda, "Adicionar", 2, field, text);
    }
    /// The member answers 1 with that number and text, and changes nothing.
    void ExpectFailed(Component& agenda, const char* member, Long number, const Text& text);

    /// Every column of every table that a write touches.
    std::vector<std::string> Contents();
    /// "DATE START-DATE END" of the appointments that were added, in their order.
    std::vector<std::string> Added();
    std::vector<std::string> AddedDays();

    /// Highest number before the test.
    static constexpr int Stored = 23;
};

} // namespace kova::family::test
