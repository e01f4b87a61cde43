#pragma once

#include "family/business/appointments/write_answer.hpp"
#include "family/data/engine/safe_write.hpp"

namespace kova::family {

/// Runs `write`, which answers a WriteAnswer, as WriteSafely does. What is not answered with Done, or fails,
/// has changed nothing. `write` may run more than once; the last answer counts.
template <class Write> WriteAnswer InTransaction(Database& database, Write write)
{
    WriteAnswer answer;
    WriteSafely(database, [&] {
        answer = write();
        return answer.IsDone();
    });
    return answer;
}

} // namespace kova::family
