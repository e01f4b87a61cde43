#pragma once

#include "family/business/write_answer.hpp"
#include "family/data/write_transaction.hpp"

namespace kova::family {

/// Runs `write`, which answers a WriteAnswer, under the lock of one transaction. What is not answered with
/// Done, or fails, has changed nothing.
template <class Write> WriteAnswer InTransaction(Database& database, Write write)
{
    WriteTransaction transaction(database);
    WriteAnswer answer = write();
    if (answer.IsDone())
        transaction.Commit();
    return answer;
}

} // namespace kova::family
