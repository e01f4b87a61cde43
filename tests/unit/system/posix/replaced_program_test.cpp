#include "system/program_path.hpp"
#include "tests/unit/system/folder_fixture.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace kova::system {

namespace {

constexpr const char* CopyName = "copy_that_removes_itself";

bool IsTheCopy() { return ProgramPath().filename() == CopyName; }

} // namespace

class TheProgramsFile : public FolderTest { };

TEST_F(TheProgramsFile, IsToldToBeReplacedOnceItIsGoneFromItsPlace)
{
    EXPECT_FALSE(ProgramWasReplaced());
    if (IsTheCopy()) {
        std::filesystem::remove(ProgramPath());
        EXPECT_TRUE(ProgramWasReplaced());
        return;
    }
    const std::string copy = In(CopyName);
    std::filesystem::copy(ProgramPath(), PathOf(copy));
    const std::string command = "'" + copy + "' --gtest_filter='TheProgramsFile.*' >/dev/null 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_FALSE(IsThere(copy));
}

} // namespace kova::system
