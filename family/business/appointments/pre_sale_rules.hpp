#pragma once

#include "family/business/appointments/write_answer.hpp"
#include "family/data/audit/author.hpp"
#include "family/data/rows/rows.hpp"

namespace kova::family {

class Database;
struct AppointmentRow;
struct AppointmentState;

/// Whether a write changes what a pre-sale is made for.
bool SellsOtherwise(const AppointmentRow& before, const AppointmentRow& after);

/// Whether a write takes a generated pre-sale away, or has it made for something else.
bool UndoesPreSale(const AppointmentRow& before, const AppointmentRow& after);

/// What a change from the appointment's status to another one means for its pre-sale, in the transaction that
/// is open: a change to 4 makes it with the service's price, one from 4 cancels it. Refused where it cannot
/// be made (a clinical type, no registered customer) or was billed already.
WriteAnswer FollowWithPreSale(Database& database, const AppointmentState& appointment, int status,
                              const Author& author);

/// The same where the write also changes what the pre-sale was made for: what is open is cancelled, and with
/// status 4 made anew with the price of `appointment`, which tells of the service and customer that are
/// written. Refused where it was billed, whatever the status.
WriteAnswer RenewPreSale(Database& database, const AppointmentState& appointment, int status,
                         const Author& author);

/// Refused where the appointment with that status has a pre-sale that is not cancelled.
WriteAnswer CheckNoPreSale(Database& database, Key appointment, int status);

} // namespace kova::family
