#include "family/business/appointments/booking.hpp"

#include "family/data/stores/appointment_status.hpp"

#include <algorithm>

namespace kova::family {

namespace {

constexpr int Sunday = 1;

/// Why nobody works on that day; nothing where they do.
std::optional<Text> ReasonToRest(Booking& booking, Date date)
{
    if (Weekday(date) == Sunday)
        return "A data " + FormatDate(date) + " é um domingo.";
    if (const auto holiday = booking.holidays->On(date))
        return "A data " + FormatDate(date) + " é feriado (" + *holiday + ").";
    return std::nullopt;
}

bool MovesAway(Booking& booking, const TimeSpan& span)
{
    return booking.RuleForDaysOff() == DaysOff::MoveAway && ReasonToRest(booking, span.start.date);
}

WriteAnswer NoRoom(const Booking& booking, const TimeSpan& clash)
{
    return WriteAnswer::InvalidField("HoraInicial", RoomTakenText(booking.employee, clash));
}

/// A cancelled appointment takes no room.
bool NeedsRoom(const Booking& booking) { return booking.row.situacao != appointment_status::Cancelled; }

/// Whether the stored appointment has its room already: it is not asked for again, whoever was booked beside
/// it since.
bool StaysInPlace(const Booking& booking, const TimeSpan& span)
{
    return booking.place && booking.place->employee == booking.employee.code && booking.place->span == span;
}

std::optional<TimeSpan> ClashWith(Booking& booking, const TimeSpan& span)
{
    return NeedsRoom(booking) ? booking.room->ClashWith(span) : std::nullopt;
}

void LookUpDays(Booking& booking)
{
    const auto [first, last] =
        std::minmax_element(booking.times.begin(), booking.times.end(),
                            [](const TimeSpan& a, const TimeSpan& b) { return a.start < b.start; });
    booking.room.emplace(booking.database, booking.employee, booking.row.numero, first->start.date,
                         last->end.date);
    booking.holidays.emplace(booking.database, booking.registers.changesOfHolidays);
}

TimeSpan NextDay(Booking& booking, TimeSpan span)
{
    do
        span = ShiftedByDays(span, 1);
    while (!CheckLimits(span) && (ReasonToRest(booking, span.start.date) || ClashWith(booking, span)));
    return span;
}

} // namespace

Refusal EmployeeHasRoom(Booking& booking)
{
    LookUpDays(booking);
    for (const TimeSpan& span : booking.times) {
        if (MovesAway(booking, span) || StaysInPlace(booking, span))
            continue;
        if (const auto clash = ClashWith(booking, span))
            return NoRoom(booking, *clash);
        booking.room->Reserve(span);
    }
    return std::nullopt;
}

Refusal NoDayIsFree(Booking& booking)
{
    if (booking.RuleForDaysOff() != DaysOff::AskAbout)
        return std::nullopt;
    for (const TimeSpan& span : booking.times) {
        if (const auto reason = ReasonToRest(booking, span.start.date))
            return WriteAnswer::InvalidField("DomingoOuFeriado", *reason);
    }
    return std::nullopt;
}

Refusal DaysOffMoveAway(Booking& booking)
{
    for (TimeSpan& span : booking.times) {
        if (!MovesAway(booking, span))
            continue;
        const TimeSpan moved = NextDay(booking, span);
        if (const Refusal refusal = CheckLimits(moved))
            return Naming(refusal, FormatDate(span.start.date));
        span = moved;
        booking.room->Reserve(span);
    }
    return std::nullopt;
}

} // namespace kova::family
