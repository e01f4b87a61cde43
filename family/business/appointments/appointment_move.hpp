#pragma once

#include "family/business/appointments/write_answer.hpp"
#include "family/business/time_span.hpp"
#include "family/data/audit/author.hpp"
#include "family/data/engine/key.hpp"

namespace kova::family {

class Database;

/// Another time or another employee for an appointment that stands on the screen.
struct AppointmentMove {
    Key number = 0;
    /// Of the row as the user sees it.
    Key version = 0;
    Key employee = 0;
    TimeSpan span;
    /// Whether the user has answered that it may be on a day off.
    bool isDayOffWanted = false;
};

/// The field that a refusal names where the user is to be asked about a day off.
inline constexpr const char* DayOffField = "DomingoOuFeriado";

/// Writes it as a record form would in which nothing but these fields were changed (AlterAppointment): what
/// other desks have changed elsewhere in the row stays, and a change of the same fields is refused with who
/// and when. Fails with a DatabaseFailure.
WriteAnswer MoveAppointment(Database& database, const AppointmentMove& move, const Author& author);

} // namespace kova::family
