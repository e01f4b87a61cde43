#include "host/session/user_change.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace kova::host {

TEST(UserChange, TellsTheAreasInTheirOrderAndThoseThatAreGoneNoMore)
{
    UserChange change;
    std::string told;
    QObject agenda;
    auto registers = std::make_unique<QObject>();
    change.Tell();
    change.Follow(agenda, [&] { told += "a"; });
    change.Follow(*registers, [&] { told += "r"; });
    change.Tell();
    EXPECT_EQ(told, "ar");
    registers.reset();
    change.Tell();
    EXPECT_EQ(told, "ara");
}

TEST(UserChange, TellsAnAreaThatFollowsWhileOthersAreToldFromTheNextOneOn)
{
    UserChange change;
    int told = 0;
    QObject area;
    change.Follow(area, [&] { change.Follow(area, [&] { ++told; }); });
    change.Tell();
    EXPECT_EQ(told, 0);
    change.Tell();
    EXPECT_EQ(told, 1);
}

} // namespace kova::host
