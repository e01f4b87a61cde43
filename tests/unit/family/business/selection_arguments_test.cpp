#include "family/business/selection_arguments.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace kova::family::test {

TEST(KeyOfAValue, IsAWholeNumberThatADoubleTellsFromTheNext)
{
    for (const Key key : {Key(0), Key(1), Key(9007199254740992)})
        EXPECT_EQ(KeyOf(Value(static_cast<Double>(key))), key);
    for (const Double none :
         {-1.0, 0.5, 1.5, 9007199254740994.0, 1e300, std::numeric_limits<Double>::infinity(),
          std::numeric_limits<Double>::quiet_NaN()})
        EXPECT_EQ(KeyOf(Value(none)), -1) << none;
}

} // namespace kova::family::test
