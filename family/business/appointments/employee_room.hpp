#pragma once

#include "family/business/appointments/employee_work.hpp"

#include <vector>

namespace kova::family {

class Database;

/// How much room one employee has, and when it is at work. It knows the stored appointments, cancelled ones
/// left out, and those reserved on it; use it inside the transaction that writes.
class EmployeeRoom {
public:
    /// `except` is an appointment that is left out, 0 for none. The spans to be asked for begin on `from` or
    /// later, most of them end until `until`. `changesOfWorkTables` is that of EmployeeWork.
    EmployeeRoom(Database& database, const BookedEmployee& employee, Key except, Date from, Date until,
                 std::optional<long long> changesOfWorkTables = {});

    EmployeeWork& Work() { return work_; }
    /// Why one more appointment cannot be there, for the user: the employee is not at work, or has no room.
    /// Empty where it can.
    Text ObjectionTo(const TimeSpan& span);

    /// Nothing where one more appointment has room. Otherwise the first one that is in its way.
    std::optional<TimeSpan> ClashWith(const TimeSpan& span);
    /// Takes the room.
    void Reserve(const TimeSpan& span) { booked_.push_back(span); }

private:
    void LoadUntil(Date until);

    Database& database_;
    BookedEmployee employee_;
    EmployeeWork work_;
    Key except_;
    std::size_t limit_;
    Date from_;
    /// Nothing before the first loading.
    std::optional<Date> loadedUntil_;
    std::vector<TimeSpan> booked_;
};

/// That the employee is busy, and when.
Text RoomTakenText(const BookedEmployee& employee, const TimeSpan& clash);

/// Why an appointment cannot be with its employee, for one that was stored and comes back; empty where it
/// can. Holds the employee in the transaction that is open, as a booking does.
Text ObjectionToReturn(Database& database, Key employee, Key appointment, const TimeSpan& span);

} // namespace kova::family
