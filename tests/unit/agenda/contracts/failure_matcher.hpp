#pragma once

#include "agenda/contracts/failure.hpp"

#include <cstdint>
#include <functional>

namespace kova::test {

/// The number of the failure that `action` ends in; 0 where it ends well.
inline std::int32_t NumberOfFailure(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

} // namespace kova::test
