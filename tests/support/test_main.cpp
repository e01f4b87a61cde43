// The main function of every test program: windows are drawn into memory, and tests that start a program
// find it in the build's own folder.

#include "tests/support/environment_variable.hpp"

#include <gtest/gtest.h>

namespace {

void SetUnlessSet(const char* name, const char* value)
{
    if (std::getenv(name) == nullptr)
        kova::test::SetVariable(name, value);
}

} // namespace

int main(int count, char** words)
{
    SetUnlessSet("QT_QPA_PLATFORM", "offscreen");
    SetUnlessSet("KOVARIS_BIN", KOVARIS_BIN);
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
