#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/stores/appointment_rows.hpp"

#include <optional>

namespace kova::family {

class Database;

/// Each writes one appointment in the transaction that is open, with who and when on the row and the whole
/// row before and after in the audit. They fail with a DatabaseFailure.

/// Answers the number that the engine gave.
Key AddAppointment(Database& database, AppointmentRow row, const Author& author);

/// `after` has the number of `before`; what `before` says about its inclusion stays, and its version
/// goes up by one.
void ReplaceAppointment(Database& database, const AppointmentRow& before, AppointmentRow after,
                        const Author& author);

/// The row goes. The audit keeps all of it, and its pre-sales stay as they are.
void RemoveAppointment(Database& database, const AppointmentRow& row, const Author& author);

/// Puts a row back that was gone, under its number and as it was; only its version goes up.
void RestoreRow(Database& database, AppointmentRow row, const Author& author);

/// A package without appointments yet. Answers its key.
Key AddPackage(Database& database, Key service, const Author& author);

} // namespace kova::family
