#pragma once

#include <cmath>
#include <limits>

namespace kova::toolkit {

/// The number without its fraction: the nearer end of the type's range for one that lies outside, 0 for one
/// that is none. A plain cast has no defined result there.
template <class Whole> Whole WholeNumber(double number)
{
    using Range = std::numeric_limits<Whole>;
    if (std::isnan(number))
        return 0;
    if (number <= static_cast<double>(Range::min()))
        return Range::min();
    if (number >= static_cast<double>(Range::max()))
        return Range::max();
    return static_cast<Whole>(number);
}

} // namespace kova::toolkit
