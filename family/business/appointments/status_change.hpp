#pragma once

#include "family/business/appointments/write_answer.hpp"
#include "family/data/audit/author.hpp"
#include "family/data/rows/rows.hpp"

namespace kova::family {

class Database;

/// Each runs in a transaction of its own: what is not answered with Done has changed nothing. A change to 4
/// makes the pre-sale with the service's price, one from 4 cancels it, and one from 3 needs the employee at
/// work and room with it. The stored status counts, not the one that a screen shows. Refused is what the
/// author has no right to (RequireRightToStatus). They fail with a DatabaseFailure.

/// Sets the status of one appointment. Refused where it is gone, where another desk has set a different one
/// since this session selected it, where its pre-sale cannot be made (a clinical type, no registered
/// customer) or was billed already, and where it comes back to an employee who is not at work then or has no
/// room for it any more.
WriteAnswer ChangeStatus(Database& database, Key appointment, int status, const Author& author);

/// Sets the status of all appointments of the same package that are neither attended nor billed; those
/// that have it already are not touched. Refused as the change of one, and where there is no package.
WriteAnswer ChangeStatusOfPackage(Database& database, Key appointment, int status, const Author& author);

/// The same of a package whose key is known: it outlives an appointment of it that was deleted. 0 is none.
WriteAnswer ChangeStatusInPackage(Database& database, Key package, int status, const Author& author);

} // namespace kova::family
