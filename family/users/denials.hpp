#pragma once

#include "family/users/user_rights.hpp"

namespace kova::family {

/// Writes a line of the audit about it, in a transaction of its own. Where that fails nothing is told: the
/// denial stands all the same.
void AuditDenial(Database& database, const Author& author, const RightDenied& denied);

/// Runs `act`, which opens its own transactions. Where it is denied the audit gets to know, and the denial
/// goes on.
template <class Act> auto TellingDenials(Database& database, const Author& author, Act act)
{
    try {
        return act();
    } catch (const RightDenied& denied) {
        AuditDenial(database, author, denied);
        throw;
    }
}

} // namespace kova::family
