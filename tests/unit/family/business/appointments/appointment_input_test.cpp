#include "family/business/appointments/appointment_input.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace kova::family::test {

TEST(KeyOfANumber, IsAWholeNumberThatADoubleTellsFromTheNext)
{
    for (const Key key : {Key(1), Key(-7), Key(9007199254740992), Key(-9007199254740992)})
        EXPECT_EQ(KeyOf(static_cast<Double>(key)), key);
    for (const Double none : {0.5, -1.5, 9007199254740994.0, -1e300, std::numeric_limits<Double>::infinity(),
                              std::numeric_limits<Double>::quiet_NaN()})
        EXPECT_EQ(KeyOf(none), 0) << none;
}

} // namespace kova::family::test
