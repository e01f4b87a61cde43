// The main function of every test program: windows are drawn into memory, and tests that start a program
// find it in the build's own folder.

#include <gtest/gtest.h>

#include <cstdlib>

int main(int count, char** words)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("KOVARIS_BIN", KOVARIS_BIN, 0);
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
