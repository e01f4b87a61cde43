#include "family/business/appointments/booking.hpp"

#include "family/data/stores/appointment_status.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// With its article; 1 Sunday to 7 Saturday.
constexpr const char* NamesOfDays[] = {"",
                                       "um domingo",
                                       "uma segunda-feira",
                                       "uma terça-feira",
                                       "uma quarta-feira",
                                       "uma quinta-feira",
                                       "uma sexta-feira",
                                       "um sábado"};

/// Why nobody works on that day; nothing where they do.
std::optional<Text> ReasonToRest(Booking& booking, Date date)
{
    if (!booking.room->Work().IsOpenOn(date))
        return "A data " + FormatDate(date) + " é " + NamesOfDays[Weekday(date)] + ".";
    if (const auto holiday = booking.holidays->On(date))
        return "A data " + FormatDate(date) + " é feriado (" + *holiday + ").";
    return std::nullopt;
}

/// A cancelled appointment takes no room and nobody's work.
bool NeedsEmployee(const Booking& booking) { return booking.row.situacao != appointment_status::Cancelled; }

/// Where no day takes it, it stays: nobody looks at the answer of a write that moves.
bool HasADayToMoveTo(Booking& booking, const TimeSpan& span)
{
    EmployeeWork& work = booking.room->Work();
    return NeedsEmployee(booking) ? work.WorksOnSomeOpenDay(span) : work.IsEverOpen();
}

bool MovesAway(Booking& booking, const TimeSpan& span)
{
    return booking.RuleForDaysOff() == DaysOff::MoveAway && ReasonToRest(booking, span.start.date)
        && HasADayToMoveTo(booking, span);
}

/// Whether it may have to move and there is no day to move to: at these hours the shop is never open. One
/// that never opens at all has none to tell of, and an employee's own hours stand for themselves.
bool IsNeverOpenThen(Booking& booking, const TimeSpan& span)
{
    EmployeeWork& work = booking.room->Work();
    return booking.RuleForDaysOff() != DaysOff::Keep && ReasonToRest(booking, span.start.date)
        && work.IsEverOpen() && !work.HasOwnHours() && !work.WorksOnSomeOpenDay(span);
}

WriteAnswer NoRoom(const Booking& booking, const TimeSpan& clash)
{
    return WriteAnswer::InvalidField("HoraInicial", RoomTakenText(booking.employee, clash));
}

/// Whether the stored appointment has its room already: it is not asked for again, whoever was booked beside
/// it since, nor is its employee's work, however the hours were changed.
bool StaysInPlace(const Booking& booking, const TimeSpan& span)
{
    return booking.place && booking.place->employee == booking.employee.code && booking.place->span == span;
}

std::optional<TimeSpan> ClashWith(Booking& booking, const TimeSpan& span)
{
    return NeedsEmployee(booking) ? booking.room->ClashWith(span) : std::nullopt;
}

void LookUpDays(Booking& booking)
{
    const auto [first, last] =
        std::minmax_element(booking.times.begin(), booking.times.end(),
                            [](const TimeSpan& a, const TimeSpan& b) { return a.start < b.start; });
    booking.room.emplace(booking.database, booking.employee, booking.row.numero, first->start.date,
                         last->end.date, booking.registers.changesOfWorkTables);
    booking.holidays.emplace(booking.database, booking.registers.changesOfHolidays);
}

/// Whether the booking can be moved there. Room is asked about last, as it may have to be read.
bool Suits(Booking& booking, const TimeSpan& span)
{
    if (ReasonToRest(booking, span.start.date))
        return false;
    return !NeedsEmployee(booking) || (booking.room->Work().IsAtWork(span) && !booking.room->ClashWith(span));
}

TimeSpan NextDay(Booking& booking, TimeSpan span)
{
    do
        span = ShiftedByDays(span, 1);
    while (!CheckLimits(span) && !Suits(booking, span));
    return span;
}

Text ObjectionOfWork(Booking& booking, const TimeSpan& span)
{
    EmployeeWork& work = booking.room->Work();
    if (MovesAway(booking, span))
        return {};
    return IsNeverOpenThen(booking, span) ? work.NotAtWorkText(span.start.date) : work.ObjectionTo(span);
}

} // namespace

Refusal EmployeeIsAtWork(Booking& booking)
{
    LookUpDays(booking);
    for (const TimeSpan& span : booking.times) {
        if (!NeedsEmployee(booking) || StaysInPlace(booking, span))
            continue;
        if (const Text objection = ObjectionOfWork(booking, span); !objection.empty())
            return WriteAnswer::InvalidField("HoraInicial", objection);
    }
    return std::nullopt;
}

Refusal EmployeeHasRoom(Booking& booking)
{
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
