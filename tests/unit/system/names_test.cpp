#include "system/computer_name.hpp"
#include "system/path_text.hpp"
#include "system/program_path.hpp"
#include "system/system_name.hpp"

#include <gtest/gtest.h>

namespace kova::system {

TEST(TheSystem, NamesItselfAndTheComputer)
{
    EXPECT_NE(SystemName(), "");
    EXPECT_NE(ComputerName(), "");
    EXPECT_EQ(ComputerName().find('\0'), std::string::npos);
}

TEST(TheSystem, KnowsTheFileOfTheProgram)
{
    EXPECT_EQ(TextOf(ProgramPath().stem()), "test_system");
    EXPECT_TRUE(std::filesystem::is_regular_file(ProgramPath()));
}

} // namespace kova::system
