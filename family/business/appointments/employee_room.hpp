#pragma once

#include "family/business/appointments/time_span.hpp"
#include "family/data/stores/booking_registers.hpp"

#include <optional>
#include <vector>

namespace kova::family {

class Database;

/// How much room one employee has. It knows the stored appointments, cancelled ones left out, and those
/// reserved on it; use it inside the transaction that writes.
class EmployeeRoom {
public:
    /// `except` is an appointment that is left out, 0 for none. The spans to be asked for begin on `from` or
    /// later, most of them end until `until`.
    EmployeeRoom(Database& database, const BookedEmployee& employee, Key except, Date from, Date until);

    /// Nothing where one more appointment has room. Otherwise the first one that is in its way.
    std::optional<TimeSpan> ClashWith(const TimeSpan& span);
    /// Takes the room.
    void Reserve(const TimeSpan& span) { booked_.push_back(span); }

private:
    void LoadUntil(Date until);

    Database& database_;
    Key employee_, except_;
    std::size_t limit_;
    Date from_;
    /// Nothing before the first loading.
    std::optional<Date> loadedUntil_;
    std::vector<TimeSpan> booked_;
};

/// That the employee is busy, and when.
Text RoomTakenText(const BookedEmployee& employee, const TimeSpan& clash);

/// Why an appointment has no room with its employee, for one that was stored and comes back; empty where it
/// has. Holds the employee in the transaction that is open, as a booking does.
Text WantOfRoom(Database& database, Key employee, Key appointment, const TimeSpan& span);

} // namespace kova::family
