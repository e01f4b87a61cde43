#include "agenda/contracts/foreign_failure.hpp"

#include "agenda/contracts/failure_detail.hpp"

#include <new>

namespace kova {

Failure AsFailure(const std::exception& failure)
{
    if (const auto* own = dynamic_cast<const Failure*>(&failure))
        return *own;
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr)
        return Failure(FailureNumber::OutOfMemory);
    const Failure unforeseen(FailureNumber::InvalidArgument);
    return Failure(unforeseen.Number(), WithDetail(unforeseen.Description(), failure.what()));
}

} // namespace kova
