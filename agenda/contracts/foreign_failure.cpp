#include "agenda/contracts/foreign_failure.hpp"

#include "agenda/contracts/failure_detail.hpp"

#include <new>
#include <stdexcept>

namespace kova {

Failure AsFailure(const std::exception& failure)
{
    if (const auto* own = dynamic_cast<const Failure*>(&failure))
        return *own;
    // A container says so where no memory would be enough.
    if (dynamic_cast<const std::bad_alloc*>(&failure) || dynamic_cast<const std::length_error*>(&failure))
        return Failure(FailureNumber::OutOfMemory);
    const Failure unforeseen(FailureNumber::InvalidArgument);
    return Failure(unforeseen.Number(), WithDetail(unforeseen.Description(), failure.what()));
}

} // namespace kova
