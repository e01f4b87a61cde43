#pragma once

#include "family/business/appointments/appointment_input.hpp"
#include "family/business/appointments/write_answer.hpp"
#include "family/data/audit/author.hpp"

namespace kova::family {

class Database;

/// The writes of whole appointments. Each runs in a transaction of its own: what is not answered with Done
/// has changed nothing. Refused before all else is what the author has no right to. They fail with a
/// DatabaseFailure.

/// Writes a booking.
/// 1. The checks of Check (booking.hpp) in their order; the first refusal is the answer.
/// 2. Several appointments of a full record on a package service get a package of their own.
/// 3. Each appointment is written, with its line in the audit.
/// 4. With status 4 each gets its pre-sale, or the booking is refused.
/// The answer tells of no package: one just made has nothing to change.
WriteAnswer AddAppointments(Database& database, const AppointmentInput& input, const Author& author);

/// Writes everything typed over the stored appointment with the input's number.
/// 1. Refused where it is gone.
/// 2. What other desks have changed since this session selected it is kept, or the write refused
///    (MergeIntoInput).
/// 3. The checks, without repetition: one appointment stays one.
/// 4. A change to or from status 4 is followed by the pre-sale, or refused; so is a change of service, type,
///    customer or animal, for which an open pre-sale is made anew and a billed one was not made.
/// 5. The row is written, with its line in the audit. It stays in its package.
WriteAnswer AlterAppointment(Database& database, const AppointmentInput& input, const Author& author);

/// Takes the appointment with the input's number away; nothing else of the input is looked at.
/// 1. Refused where it is gone.
/// 2. Refused where other desks have changed it since this session selected it (CheckUnchanged).
/// 3. Refused where it has a pre-sale that is not cancelled.
/// 4. The row goes; the audit keeps all of it.
WriteAnswer DeleteAppointment(Database& database, const AppointmentInput& input, const Author& author);

} // namespace kova::family
