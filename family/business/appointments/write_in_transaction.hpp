#pragma once

#include "family/business/appointments/write_answer.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/users/denials.hpp"

namespace kova::family {

/// Runs `write`, which answers a WriteAnswer, as WriteSafely does. What is not answered with Done, or fails,
/// has changed nothing. `write` may run more than once; the last answer counts. What the author has no right
/// to is refused, and stands in the audit.
template <class Write> WriteAnswer InTransaction(Database& database, const Author& author, Write write)
{
    WriteAnswer answer;
    try {
        TellingDenials(database, author, [&] {
            WriteSafely(database, [&] {
                answer = write();
                return answer.IsDone();
            });
        });
    } catch (const RightDenied& denied) {
        return WriteAnswer::Refusal(denied.Cause());
    }
    return answer;
}

} // namespace kova::family
