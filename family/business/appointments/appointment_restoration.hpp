#pragma once

#include "family/business/appointments/write_answer.hpp"
#include "family/data/audit/author.hpp"
#include "family/data/rows/rows.hpp"

namespace kova::family {

class Database;

/// Brings a deleted appointment back under its number, every column as it was when it was deleted, in a
/// transaction of its own and with its line in the audit ("restauracao"). Refused, with nothing changed,
/// where the author may not book, and
/// 1. where there is an appointment with that number;
/// 2. where the audit does not know of its deletion, or not of all its columns;
/// 3. where what it refers to is not registered any more;
/// 4. where its employee is not at work then or has no room any more; neither is asked of a cancelled
///    appointment.
/// Fails with a DatabaseFailure.
WriteAnswer RestoreAppointment(Database& database, Key number, const Author& author);

} // namespace kova::family
