#pragma once

#include "family/data/engine/key.hpp"
#include "family/data/stores/booked_times.hpp"

#include <string>
#include <vector>

namespace kova::family {

class Database;

/// What is told of an appointment where there is little room.
struct DayAppointmentRow {
    Key number = 0, version = 0, employee = 0;
    BookedTimeRow times;
    /// 1 booked, 2 attended, 3 cancelled, 4 attended with its pre-sale.
    int status = 0;
    std::string customer, animal, service;
    bool isFetched = false, isTakenBack = false;
};

/// Which ones; `employee` 0 is everybody. Days are "yyyy-mm-dd", both included.
struct DayAppointmentsFilter {
    std::string from, until;
    Key employee = 0;
};

/// Those that touch one of the days, also where they began before, in no particular order. Fails as
/// Database::With.
std::vector<DayAppointmentRow> FindDayAppointments(Database& database, const DayAppointmentsFilter& filter);

/// Its statement, for those who look at how the engine runs it. The parameters are de, ate and funcionario.
std::string DayAppointmentsStatement();

} // namespace kova::family
