#pragma once

#include "family/business/appointments/appointment_input.hpp"
#include "family/business/appointments/employee_room.hpp"
#include "family/business/appointments/typed_times.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/booking_registers.hpp"
#include "family/data/stores/holiday_calendar.hpp"

namespace kova::family {

/// What a booking does about dates that fall on a day off: a holiday, or a day of the week on which the shop
/// is closed.
enum class DaysOff { Keep, AskAbout, MoveAway };

/// One booking on its way through the checks: what was typed, what the checks have found out, and in the end
/// the appointments to write. It lives inside the transaction that writes.
struct Booking {
    /// A new booking, with its repetitions.
    Booking(Database& data, const AppointmentInput& typed) : database(data), input(typed), adds(true) { }
    /// One appointment over a stored one.
    Booking(Database& data, const AppointmentInput& typed, const AppointmentRow& stored);

    bool Repeats() const { return adds && !input.IsSimplified(); }
    /// Whether its dates were picked by hand.
    bool IsPicked() const { return Repeats() && input.picked; }
    DaysOff RuleForDaysOff() const;
    /// One of its appointments.
    AppointmentRow At(const TimeSpan& span) const;

    /// Room that is taken.
    struct Place {
        Key employee;
        TimeSpan span;
    };

    Database& database;
    const AppointmentInput& input;
    const bool adds;
    /// Of the stored appointment; nothing where it takes none, being cancelled.
    std::optional<Place> place;

    /// What it refers to, as it stands in the transaction.
    BookingRegisters registers;
    /// What its appointments have in common.
    AppointmentRow row;
    BookedService service;
    BookedEmployee employee;
    /// When they run; never empty after the checks.
    std::vector<TimeSpan> times;
    /// Known from the check that the employee is at work on.
    std::optional<EmployeeRoom> room;
    std::optional<HolidayCalendar> holidays;
};

/// Runs the checks in their order and completes the booking. Answers the first refusal.
Refusal Check(Booking& booking);

// booking_days.cpp

/// Refused where the employee is away or not at work at a date that stays; and where a date that may move has
/// hours at which the shop is never open: the user is told of it before being asked.
Refusal EmployeeIsAtWork(Booking& booking);
/// Refused where a date that stays finds the employee without room.
Refusal EmployeeHasRoom(Booking& booking);
/// Refused where the user has still to be asked about a day off.
Refusal NoDayIsFree(Booking& booking);
/// Moves what falls on a day off to the next day that is none, on which the employee is at work and has room,
/// where the user wants that. Refused only where the calendar ends.
Refusal DaysOffMoveAway(Booking& booking);

} // namespace kova::family
