#include "family/business/selection_arguments.hpp"

#include <algorithm>
#include <cmath>

namespace kova::family {

namespace {

constexpr Long PagedMode = 1;
/// Up to here a Double tells every whole number from the next.
constexpr Double LargestCode = 9007199254740992.0;

} // namespace

Long RowsOfPage(std::span<const Argument> arguments, Long foundRows)
{
    const bool paged = arguments[0].Get().ToLong() == PagedMode;
    return std::max<Long>(1, paged ? arguments[1].Get().ToLong() : foundRows);
}

Key KeyOf(const Value& code)
{
    const Double number = code.ToDouble();
    const bool isCode = number >= 0 && number <= LargestCode && std::floor(number) == number;
    return isCode ? static_cast<Key>(number) : -1;
}

void RequireUserObject(const Value& user)
{
    if (user.GetType() != ValueType::Object)
        throw Failure(FailureNumber::TypeMismatch);
}

} // namespace kova::family
