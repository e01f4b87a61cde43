#include "system/command_line.hpp"

#include <gtest/gtest.h>

namespace kova::system {

TEST(ArgumentsOnPosix, AreTheWordsBehindTheProgramsName)
{
    const char* words[] = {"programa", "--user", "João"};
    EXPECT_EQ(Arguments(3, words), (std::vector<std::string>{"--user", "João"}));
    EXPECT_TRUE(Arguments(1, words).empty());
    EXPECT_TRUE(Arguments(0, words).empty());
}

} // namespace kova::system
