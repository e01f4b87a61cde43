#include "family/business/appointments/appointment_move.hpp"

#include "family/business/appointments/appointment_fields.hpp"
#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/find_by_key.hpp"

namespace kova::family {

WriteAnswer MoveAppointment(Database& database, const AppointmentMove& move, const Author& author)
{
    const auto stored = FindByKey<AppointmentRow>(database, move.number);
    AppointmentInput input;
    if (stored)
        input = InputOf(*stored);
    // Of one that is gone meanwhile the write says so.
    input.number = static_cast<Double>(move.number);
    input.employee = static_cast<Long>(move.employee);
    input.startDate = FormatDate(move.span.start.date);
    input.startTime = FormatTime(move.span.start.time);
    input.endDate = FormatDate(move.span.end.date);
    input.endTime = FormatTime(move.span.end.time);
    input.validated = move.isDayOffWanted;
    const auto seen = database.Versions().Keep({{move.number, move.version}});
    return AlterAppointment(database, input, author);
}

} // namespace kova::family
